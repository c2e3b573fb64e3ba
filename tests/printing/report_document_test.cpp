// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/make_report.h"

#include <filesystem>

#include "printing/selection_formula.h"
#include "store/contract.h"
#include "store/program_files.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

TEST(Selection, TakesTheRowsWhoseNumberIsInTheRange) {
  const Locale point;
  const SelectionFormula formula("ToNumber ({Logbuch.Nr}) in 3 to 9", point);
  EXPECT_TRUE(formula.concerns("Logbuch"));
  EXPECT_FALSE(formula.concerns("Benutzer"));
  EXPECT_EQ(formula.column(), "Nr");
  for (const auto* number : {"3", "9", "4.5", " 03 ", "9E0"})
    EXPECT_TRUE(formula.selects(number)) << number;
  for (const auto* number : {"2", "10", "30", "", "x", "4,5", "9.01"})
    EXPECT_FALSE(formula.selects(number)) << number;
  EXPECT_TRUE(
      SelectionFormula("tonumber({Logbuch.Tiefe}) IN 2,5 to 1.000", commaLocale()).selects("3,5"));
  EXPECT_FALSE(SelectionFormula("", point).concerns("Logbuch"));
}

TEST(Selection, RefusesWhatItCannotRead) {
  for (const auto* formula :
       {"Nr in 3 to 9", "ToNumber ({Nr}) in 3 to 9", "ToNumber ({Logbuch.Nr}) in 3",
        "ToNumber ({Logbuch.Nr}) in a to 9", "ToNumber ({Logbuch.Nr}) in 3 to 9 or 1", " "})
    EXPECT_THROW(SelectionFormula(formula, Locale()), ReportFault) << formula;
}

TEST(Templates, NoDialogMayWriteOverOne) {
  const auto folder = std::filesystem::path("/diver");
  const auto guarded = programFiles((folder / "Logbuch.mdb").string());
  for (const auto& report : std::filesystem::directory_iterator(NAUTREL_REPORTS)) {
    const auto file = (folder / report.path().filename()).string();
    EXPECT_NE(std::find(guarded.begin(), guarded.end(), file), guarded.end()) << file;
  }
}

class Reports : public LogbookTest {
 protected:
  static std::string joined(const Texts& cells) {
    std::string all;
    for (const auto& cell : cells) all += cell + "|";
    return all;
  }
  ReportDocument make(const std::string& source, const std::string& formula = {}) {
    return run({.templatePath = folder.write("Some.rpt", source), .selectionFormula = formula});
  }
  ReportDocument delivered(const std::string& name, const std::string& formula = {}) {
    std::filesystem::copy(std::filesystem::path(NAUTREL_REPORTS) / name, folder.file(name),
                          std::filesystem::copy_options::overwrite_existing);
    return run({.templatePath = folder.file(name), .selectionFormula = formula});
  }
  ListReport list(const std::string& source, const std::string& formula = {}) {
    return std::get<ListReport>(make(source, formula));
  }
  std::string page(const std::string& source) { return std::get<PageReport>(make(source)).html; }
  std::string faultOf(const std::string& source, const std::string& formula = {}) {
    try {
      make(source, formula);
    } catch (const ReportFault& fault) {
      return fault.text;
    }
    return "no fault";
  }
  void fillIn(const std::string& table, const Dive& values) {
    Workspace workspace;
    auto row = workspace.OpenDatabase(folder.file("Logbuch.mdb")).OpenRecordset(table);
    row.Edit();
    for (const auto& [name, value] : values) row.setField(name, value);
    row.Update();
  }

 private:
  ReportDocument run(const ReportJob& job) {
    return makeReport(job, desktop->time, desktop->places);
  }
};

TEST_F(Reports, TheDeliveredListShowsTheRangeOneDiveAndNone) {
  addDives(1, 12);
  add({{"Nr", "13"}, {"Land", "<Sinai>"}, {"Tag", "1"}, {"Monat", "2"}, {"Jahr", "2001"}});
  add({{"Nr", "14"},
       {"Land",
        "a\x1F"
        "b"},
       {"Tag", ""},
       {"Monat", "7"},
       {"Zeit", "9"}});
  const auto formula = "ToNumber ({Logbuch.Nr}) in 12 to 14";
  const auto report = std::get<ListReport>(delivered("Liste.rpt", formula));
  EXPECT_EQ(report.title, "Dive list");
  EXPECT_EQ(report.subtitle, "Dives 12 to 14");
  EXPECT_EQ(report.footer(1, 3), "Nautrel 2.0 · printed 3/5/2001 2:07:09 PM | Page 1 of 3");
  EXPECT_EQ(joined(report.cells),
            "12|05.03.2001|Land 12|Ort 12|P|40 min|60 ft||"
            "13|1.2.2001|<Sinai>||||||"
            "14||a\x1F"
            "b|||9 min|||");
  std::string heads;
  for (const auto& column : report.layout.columns) heads += column.head + "|";
  EXPECT_EQ(heads, "#|Date|Country|City / Island|Dive place|Time|Depth|Buddy|");
  const auto subtitle = [&](const std::string& range) {
    return std::get<ListReport>(delivered("Liste.rpt", "ToNumber ({Logbuch.Nr}) in " + range))
        .subtitle;
  };
  EXPECT_EQ(subtitle("2 to 2"), "Dive 2");
  EXPECT_EQ(subtitle("17 to 19"), "No dives");
}

TEST_F(Reports, AnEditedListComesOutAsEdited) {
  add({{"Nr", "1"}, {"Deco", true}, {"Lang", "a\r\nb"}});
  add({{"Nr", "none"}});
  add({{"Nr", "2"}, {"Land", ""}});
  const auto report = list(
      "\xEF\xBB\xBF# a remark: with a colon\r\n"
      "rows: Logbuch\r\n title : {{count}} rows: {{first.Nr}}-{{last.Nr}} on {{date}}\r\n"
      "size: 10.5\r\nlines: 3\r\npaper: portrait\r\n\r\n"
      "column: Dive|30|center|no. {{Nr}} | {{#Deco}}deco{{/Deco}}{{^Deco}}-{{/Deco}}\r\n"
      "column: |12.5|left|{{^Land}}?{{/Land}}{{Lang}}{{{Typo}}}");
  EXPECT_EQ(report.title, "3 rows: 1-2 on 3/5/2001");
  EXPECT_EQ(report.cells,
            (Texts{"no. 1 | deco", "?a\r\nb", "no. none | -", "?", "no. 2 | -", "?"}));
  EXPECT_EQ(report.layout.paper, ListLayout::Paper::Portrait);
  EXPECT_EQ(report.layout.textSize, 10.5);
  EXPECT_EQ(report.layout.linesPerCell, 3);
  EXPECT_EQ(report.layout.columns[0].alignment, ListLayout::Alignment::Center);
  EXPECT_EQ(report.layout.columns[1].width, 12.5);
}

TEST_F(Reports, ARowWithoutANumberIsLeftOutOfARange) {
  for (const auto* number : {"1", "", "x", "2", "3"}) add({{"Nr", number}});
  add({{"Land", "Nr is NULL"}});
  const auto report = list("rows: Logbuch\ncolumn: # | 9 | left | {{Land}}{{Nr}}",
                           "ToNumber ({Logbuch.Nr}) in 0 to 2");
  EXPECT_EQ(report.cells, (Texts{"1", "2"}));
}

TEST_F(Reports, ThePageReadsTheTablesThatItNames) {
  fillIn("Benutzer", {{"Vorname", "<Anna>"}, {"Weitere", "one & \"two\"\nthree"}, {"Fax", ""}});
  EXPECT_EQ(page("<p>{{#Benutzer}}{{Vorname}} {{#Fax}}FAX{{/Fax}}{{#Tel}}T{{/Tel}}{{Weitere}}"
                 "{{/Benutzer}}{{#Logbuch}}{{Nr}}{{/Logbuch}}</p>"),
            "<p>&lt;Anna&gt; one &amp; &quot;two&quot;<br/>three</p>");
}

TEST_F(Reports, TheDeliveredPagesShowEveryColumnOfTheirRow) {
  const std::pair<const char*, const char*> pages[] = {{"Benutzer.rpt", "Benutzer"},
                                                       {"Statistik.rpt", "Statistik"}};
  for (const auto& [file, table] : pages) {
    Dive values;
    for (const auto& known : logbookTables())
      for (const auto& column : known.columns)
        if (known.name == table)
          values[std::string(column.name)] = "[" + std::string(column.name) + "]";
    fillIn(table, values);
    const auto page = std::get<PageReport>(delivered(file));
    const auto all = page.title + page.subtitle + page.html;
    for (const auto& [name, value] : values)
      EXPECT_NE(all.find(value.text({})), std::string::npos) << file << " lacks " << name;
  }
}

TEST_F(Reports, TheDeliveredCardLeavesOutWhatIsEmpty) {
  const auto empty = std::get<PageReport>(delivered("Benutzer.rpt"));
  EXPECT_EQ(empty.title, "Personal information");
  EXPECT_EQ(empty.subtitle, "");
  EXPECT_EQ(empty.html.find("<td"), std::string::npos);
  EXPECT_EQ(empty.html.find("<h2"), std::string::npos);
  fillIn("Benutzer", {{"Nachname", "A|B"}, {"Plz", "12345"}, {"Ort", ""}, {"Cernr", "7"}});
  const auto card = std::get<PageReport>(delivered("Benutzer.rpt"));
  EXPECT_EQ(card.title, "A|B");
  EXPECT_EQ(card.subtitle, "Personal information");
  for (const auto* text : {"12345", ">The diver<", ">Last dive certification<"})
    EXPECT_NE(card.html.find(text), std::string::npos) << text;
  for (const auto* text : {"FAX", "Several", "Level"})
    EXPECT_EQ(card.html.find(text), std::string::npos) << text;
}

TEST_F(Reports, APageSaysWhatStandsAboveAndBelowIt) {
  fillIn("Benutzer", {{"Vorname", "A<B"}});
  const struct {
    const char *source, *title, *subtitle, *foot, *html;
  } pages[] = {{"<p>x</p>", "", "", "| Page 2 of 3", "<p>x</p>"},
               {"<p><!-- {{#a}} <header>no</header> --></p>", "", "", "| Page 2 of 3", "<p></p>"},
               {"<HEADER> {{#Benutzer}}{{Vorname}}{{/Benutzer}}|{{date}}</HEADER>\n<footer>p. "
                "{{page}}</footer><b/>",
                "A<B", "3/5/2001", "p. 2", "<b/>"},
               {"<header> | only</header>-", "only", "", "| Page 2 of 3", "-"}};
  for (const auto& [source, title, subtitle, foot, html] : pages) {
    const auto report = std::get<PageReport>(make(source));
    EXPECT_EQ(report.title, title) << source;
    EXPECT_EQ(report.subtitle, subtitle) << source;
    EXPECT_EQ(report.footer(2, 3), foot) << source;
    EXPECT_NE(report.html.find(html), std::string::npos) << report.html;
    EXPECT_EQ(report.html.find("eader"), std::string::npos) << report.html;
  }
}

TEST_F(Reports, AFaultNamesTheFileAndWhatIsWrong) {
  addDives(1, 99);
  add({{"Nr", "100"}, {"Lang", std::string(400'000, 'x')}});
  const std::string column = "\ncolumn: # | 12 | left | {{Nr}}";
  const auto times = [](int count, const std::string& text) {
    std::string all;
    for (int i = 0; i < count; ++i) all += text;
    return all;
  };
  const std::string dives = "{{#Logbuch}}";
  const std::pair<std::string, std::string> templates[] = {
      {"", "empty"},
      {times(5 << 20, "x"), "too long"},
      {"rows: Logbuch" + times(61, column), "60 columns"},
      {times(60, "<p>{{#a}}") + times(60, "{{/a}}"), "50 sections"},
      {"rows: Logbuch\ntitle: " + times(60, "{{^a}}") + times(60, "{{/a}}") + column,
       "50 sections"},
      {"<p>{{=< >=}}" + times(60, "<#a>") + times(60, "</a>"), "50 sections"},
      {times(11, "<table><tr><td>"), "10 tables"},
      {"<p>" + times(30'000, "x"), "20000 characters"},
      {times(101, "<Div class='x'>"), "100 elements"},
      {times(200, "<p><li>") + "<table><tr><td COLSPAN=\"20000\"><td rowspan=20000>", "cells"},
      {"<table>" + times(3, "<tr>" + times(100'000, "<td>")), "cells"},
      {"<p>" + times(4, dives) + times(4, "{{/Logbuch}}"), "too long"},
      {"<p>" + times(2, dives) + "{{{Lang}}}" + times(2, "{{/Logbuch}}"), "too long"},
      {"rows: Logbuch", "no columns"},
      {"title: x" + column, "no table"},
      {"rows: Tauchgänge" + column, "'Tauchgänge'"},
      {"rows: Logbuch\nwdith: 3" + column, "Line 2: \"wdith\""},
      {"rows: Logbuch\nnonsense" + column, "Line 2: \"nonsense\""},
      {"rows: Logbuch\npaper: square" + column, "auto, portrait, landscape"},
      {"rows: Logbuch\nlines: 0" + column, "\"0\" is no measure from 1 to 20"},
      {"rows: Logbuch\ncolumn: # | wide | left | {{Nr}}", "Line 2: \"wide\""},
      {"rows: Logbuch\ncolumn: # | 12 | middle | {{Nr}}", "left, center, right"},
      {"rows: Logbuch\ncolumn: # | 12", "Line 2"},
      {"rows: Logbuch\ncolumn: Dive | 12 | left | {{#Nr}}", "Column \"Dive\""},
      {"rows: Logbuch\ntitle: {{" + column, "The title"},
      {"rows: Logbuch\nfooter: {{/x}}" + column, "The footer"},
      {"<p>{{#Logbuch}}</p>", "The page"},
      {"<p>{{", "The page"}};
  for (const auto& [source, told] : templates) {
    const auto text = faultOf(source);
    EXPECT_NE(text.find(folder.file("Some.rpt")), std::string::npos) << text;
    EXPECT_NE(text.find(told), std::string::npos) << text;
  }
  EXPECT_NE(faultOf("rows: Logbuch" + column, "all of them").find("\"all of them\""),
            std::string::npos);
  std::filesystem::create_directory(folder.file("Folder.rpt"));
  for (const auto* name : {"Liste.rpt", "Folder.rpt"})
    EXPECT_THROW(makeReport({.templatePath = folder.file(name)}, {}, {}), ReportFault) << name;
  std::filesystem::remove(folder.file("Logbuch.mdb"));
  EXPECT_NE(faultOf("<p>").find("Logbuch.mdb"), std::string::npos);
}

}  // namespace
}  // namespace nautrel
