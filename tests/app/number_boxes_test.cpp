// SPDX-License-Identifier: GPL-2.0-or-later
#include "search/TermSearchForm.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;

/// The boxes for dive numbers, in every window that has them.
class NumberBoxes : public LogbookTest {
 protected:
  Form& open(MenuItem MDIForm1::*command) {
    click(app->MDIForm1().*command);
    auto& form = *app->activeForm();
    if (auto* pages = dynamic_cast<TabStrip*>(form.control("SSTab1"))) choose(*pages, 1);
    return form;
  }
  template <class Kind>
  static Kind& part(Form& form, const char* name) {
    return *dynamic_cast<Kind*>(form.control(name));
  }
};

const struct {
  MenuItem MDIForm1::*command;
  const char *box, *spin;
  int least = 1, most = 25;
  bool takesAll = false;
} kBoxes[] = {{&MDIForm1::Menü1a, "Text1", "SpinButton1"},
              {&MDIForm1::Menü1a, "Text2", "SpinButton2"},
              {&MDIForm1::Menü1a, "Text3", "SpinButton3", 1, 9999},
              {&MDIForm1::Menü1d, "Text1", "SpinButton1", 1, 9999},
              {&MDIForm1::Menü2c, "Text6", "SpinButton1", 20},
              {&MDIForm1::Menü2c, "Text7", "SpinButton2", 20},
              {&MDIForm1::Menü3b, "Text1", "SpinButton1"},
              {&MDIForm1::Menü3b, "Text2", "SpinButton2"},
              {&MDIForm1::Menü3c, "Text2", "SpinButton2"},
              {&MDIForm1::Menü3e, "Text1", "SpinButton1", 1, 25, true},
              {&MDIForm1::Menü3e, "Text2", "SpinButton2", 1, 25, true}};

TEST_F(NumberBoxes, TakeWholeNumbersAloneButNotInTheFullSearch) {
  addDives(20, 25);
  start();
  const struct {
    const char* text;
    const char *typed, *pasted;
  } cases[] = {{"007", "7", "7"},         {"x", "", ""},   {"1.5", "15", "2"}, {"2.5", "25", "2"},
               {"12345", "1234", "1234"}, {"0", "", ""},   {"0.9", "9", ""},   {" 12", "12", "12"},
               {"1E3", "3", "1000"},      {"-7", "7", ""}, {"1a", "", ""},     {"12", "12", "12"}};
  for (const auto& each : kBoxes) {
    auto& box = part<TextBox>(open(each.command), each.box);
    for (const auto& [text, typed, pasted] : cases) {
      SCOPED_TRACE(box.form().name() + " " + box.name() + ": " + text);
      clear(box);
      type(box, text);
      EXPECT_EQ(box.text(), each.takesAll ? std::string(text).substr(0, 4) : typed);
      clear(box);
      paste(box, text);
      EXPECT_EQ(box.text(), each.takesAll ? std::string(text).substr(0, 4) : pasted);
    }
    close(box.form());
  }
}

// Down stops at the logbook's first number where dives are deleted, and at 1 elsewhere.
TEST_F(NumberBoxes, StepBetweenTheirBounds) {
  addDives(20, 25);
  start();
  for (const auto& each : kBoxes) {
    auto& box = part<TextBox>(open(each.command), each.box);
    auto& spin = part<SpinButton>(box.form(), each.spin);
    const auto step = [&](const std::string& from, bool up) {
      box.setText(from);
      up ? spinUp(spin) : spinDown(spin);
      return box.text();
    };
    SCOPED_TRACE(box.form().name() + " " + box.name());
    const auto text = [](int number) { return std::to_string(number); };
    EXPECT_EQ(step(text(each.most), true), text(each.most));
    EXPECT_EQ(step(text(each.most - 1), true), text(each.most));
    EXPECT_EQ(step(text(each.least + 1), false), text(each.least));
    EXPECT_EQ(step(text(each.least), false), text(each.least));
    EXPECT_EQ(step("", true), text(each.least + 1));
    EXPECT_EQ(step("", false), text(each.least));
    close(box.form());
  }
}

const std::string kFirst = "First dive-# not valid";
const std::string kLast = "Last dive-# not valid";
const std::string kOrder = "First dive-# must be lower than last dive-#";

const struct {
  MenuItem MDIForm1::*command;
  const char *first, *last, *check, *verdict;
  std::string saysFirst, saysLast, saysOrder;
} kRanges[] = {
    {&MDIForm1::Menü2c, "Text6", "Text7", "Command4", "Text9", "First dive-# is not valid",
     "Last dive-# is not valid", kOrder},
    {&MDIForm1::Menü1a, "Text1", "Text2", "Command1", "Text4", kFirst, kLast, kOrder},
    {&MDIForm1::Menü3b, "Text1", "Text2", "Command1", "Text3", kFirst, kLast, kOrder + "."},
    {&MDIForm1::Menü3c, "Text1", "Text2", "Command1", "Text3", kFirst, kLast, kOrder},
    {&MDIForm1::Menü3e, "Text1", "Text2", "Command1", "Text3", kFirst, kLast, kOrder + "!"}};

class Ranges : public NumberBoxes {
 protected:
  /// What is told, in its order: F for the first number, L for the last one, O for their order.
  struct Case {
    const char *first, *last;
    std::string faults;
  };
  void expectChecked(const std::vector<Case>& cases) {
    for (const auto& window : kRanges)
      for (const auto& [first, last, faults] : cases) {
        auto& form = open(window.command);
        SCOPED_TRACE(form.name() + " " + first + " to " + last);
        auto& verdict = part<TextBox>(form, window.verdict);
        for (const auto& [name, text] : {std::pair{window.first, first}, {window.last, last}}) {
          clear(part<TextBox>(form, name));
          paste(part<TextBox>(form, name), text);
        }
        desktop->messages();
        const bool asks = faults.empty() && window.command == &MDIForm1::Menü2c;
        if (asks) desktop->answer(kNo);
        click(part<Button>(form, window.check));
        Texts told;
        for (const char fault : faults)
          told.push_back(fault == 'F'   ? window.saysFirst
                         : fault == 'L' ? window.saysLast
                                        : window.saysOrder);
        const auto texts = desktop->texts();
        EXPECT_TRUE(faults.empty() || texts == told) << testing::PrintToString(texts);
        EXPECT_EQ(verdict.text(), faults.empty()         ? ""
                                  : faults.back() == 'O' ? "falsch"
                                  : faults.back() == 'L' ? "falsch letzter"
                                                         : "falsch erster");
        EXPECT_EQ(app->MDIForm1().MousePointer(), 0);
        if (auto* search = dynamic_cast<TermSearchForm*>(&form); search && !faults.empty()) {
          EXPECT_TRUE(search->enabled() && search->Combo1.enabled());
          EXPECT_TRUE(search->Combo1.lines().empty() && !search->Command2.enabled());
        }
        close(form);
      }
  }
};

TEST_F(Ranges, AreCheckedByThreeTestsInOrder) {
  addDives(1, 10);
  start();
  expectChecked({{"4", "4", ""},
                 {"1", "10", ""},
                 {"7", "6", "O"},
                 {"11", "11", "FL"},
                 {"", "", "FLO"},
                 {"", "5", "FO"},
                 {"2", "", "LO"},
                 {"11", "10", "FO"}});
}

TEST_F(Ranges, AreComparedAsTextBelowAndAsNumbersAbove) {
  addDives(5, 14);
  start();
  expectChecked(
      {{"5", "9", ""}, {"10", "9", "FO"}, {"6", "10", "L"}, {"10", "12", "FL"}, {"4", "9", "F"}});
}

TEST_F(Ranges, AreEmptyAndRefusedWhereTheLogbookHasNoNumber) {
  add({{"Nr", Value::null()}});
  add({{"Nr", "2"}});
  start();
  for (const auto& window : kRanges) {
    if (window.command == &MDIForm1::Menü2c) continue;
    auto& form = open(window.command);
    EXPECT_EQ(part<TextBox>(form, window.first).text(), "") << form.name();
    EXPECT_EQ(part<TextBox>(form, window.last).text(), "2") << form.name();
    close(form);
  }
  expectChecked({{"1", "2", "FL"}});
  add({{"Nr", Value::null()}});
  restart();
  expectChecked({{"2", "2", "FL"}});
}

}  // namespace
}  // namespace nautrel
