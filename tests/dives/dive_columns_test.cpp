// SPDX-License-Identifier: GPL-2.0-or-later
#include <set>

#include "dives/Form2.h"
#include "dives/Form3.h"
#include "dives/Form4.h"
#include "store/contract.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

using Arrow = Navigator::Arrow;
using Texts = std::vector<std::string>;

/// Types into all boxes and presses all marks that there are, and holds what comes of it against
/// the contract of the store: a column that a window forgets is missed.
class DiveColumns : public LogbookTest {
 protected:
  std::vector<Texts> stored(Kind kind) {
    Columns names;
    for (const auto& column : kLogbuchColumns)
      if (column.kind == kind && column.name != "Nr") names.emplace_back(column.name);
    return rows("Logbuch", names);
  }
  std::vector<Texts> texts(bool again) const {
    Texts dive;
    for (const auto& box : boxes) dive.push_back(box.texts[again]);
    return std::vector<Texts>(marks.size(), dive);
  }

  void enter(DiveEntryForm& form, const std::string& mark, bool again) {
    const auto reach = [&](const std::string& name) {
      auto* control = form.control(name);
      for (int page = 0; !control->canTakeFocus() && page < 4; ++page) choose(form.SSTab1, page);
      return control;
    };
    const auto expectEdited = [&](const std::string& name) {
      EXPECT_EQ(form.Text20.text() == "geändert", !again && name != "Check7") << name;
      form.Text20.setText("");
    };
    for (const auto& [box, texts] : boxes) {
      focus(*reach(box));
      typeOn(form, texts[again]);
      expectEdited(box);
    }
    auto* pressed = reach(mark);
    if (auto* check = dynamic_cast<CheckBox*>(pressed)) click(*check);
    if (auto* option = dynamic_cast<OptionButton*>(pressed))
      again ? doubleClick(*option) : click(*option);
    expectEdited(mark);
  }

  static Texts flagsIn(const Form3& view) {
    Texts shown;
    for (auto* control : view.controls()) {
      if (auto* label = dynamic_cast<Label*>(control)) shown.push_back(label->caption());
      if (dynamic_cast<Image*>(control)) shown.push_back(control->visible() ? "Yes" : "No");
    }
    return shown;
  }
  void expectTextsIn(const Form3& view) {
    for (const auto& [box, texts] : boxes) {
      const auto* shown = dynamic_cast<TextBox*>(view.control(box == "Text21" ? "Text12" : box));
      const bool isDate = box == "Text5" || box == "Text6" || box == "Text7";
      EXPECT_TRUE(isDate || shown->text() == texts[0]) << box;
    }
    EXPECT_EQ(view.Text5.text(), "25.12.2007");
  }

  /// In the order of the stored columns, with what is typed in Insert and over it in Edit.
  struct Box {
    std::string name;
    std::array<std::string, 2> texts;
  };
  std::vector<Box> boxes = {{"Text2", {"22", "52"}},  {"Text3", {"23", "53"}},
                            {"Text4", {"24", "54"}},  {"Text5", {"25", "15"}},
                            {"Text6", {"12", "11"}},  {"Text7", {"2007", "2008"}},
                            {"Text9", {"29", "59"}},  {"Text10", {"30", "60"}},
                            {"Text8", {"28", "58"}},  {"Text11", {"31", "61"}},
                            {"Text17", {"37", "67"}}, {"Text13", {"33", "63"}},
                            {"Text18", {"38", "68"}}, {"Text14", {"34", "64"}},
                            {"Text15", {"35", "65"}}, {"Text16", {"36", "66"}},
                            {"Text19", {"39", "69"}}, {"Text21", {"41", std::string(300, 'x')}}};
  Texts marks = {"Option1", "Option2", "Option3", "Option4", "Check6", "Option5",
                 "Option6", "Option7", "Option8", "Option9", "Check7"};
};

TEST_F(DiveColumns, AllOfTheContractComeBackFromInsertViewAndEdit) {
  start();
  auto flags = std::vector<Texts>(marks.size(), Texts(marks.size(), "No"));
  for (std::size_t dive = 0; dive < marks.size(); ++dive) {
    flags[dive][dive] = "Yes";
    click(app->MDIForm1().Menü2a);
    enter(app->Form2(), marks[dive], false);
    click(app->Form2().Command2);
  }
  EXPECT_EQ(stored(Kind::Text), texts(false));
  EXPECT_EQ(stored(Kind::Flag), flags);

  click(app->MDIForm1().Menü3a);
  auto& view = app->Form3();
  view.Leeren();
  std::set<Texts> looks{flagsIn(view)};  // a flag shows where View looks another way
  press(view.Data1, Arrow::First);
  const auto first = flagsIn(view);
  for (const auto& mark : marks) {
    EXPECT_TRUE(looks.insert(flagsIn(view)).second) << mark;
    expectTextsIn(view);
    press(view.Data1, Arrow::Next);
  }
  press(view.Data1, Arrow::First);
  EXPECT_EQ(flagsIn(view), first);

  for (const bool again : {false, true}) {
    click(app->MDIForm1().Menü2b);
    auto& form = app->Form4();
    for (const auto& mark : marks) {
      if (again) enter(form, mark, again);
      click(form.Command1);
    }
    close(form);
    if (again) flags.assign(marks.size(), Texts(marks.size(), "No"));
    EXPECT_EQ(stored(Kind::Text), texts(again));
    EXPECT_EQ(stored(Kind::Flag), flags);
  }
}

}  // namespace
}  // namespace nautrel
