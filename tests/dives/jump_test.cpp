// SPDX-License-Identifier: GPL-2.0-or-later
#include "data/data_control.h"
#include "support/logbook.h"

namespace nautrel {
namespace {

class Jump : public LogbookTest {};

// Edit goes on in its first box, where the answer was a number at all; Delete leaves the focus
// alone; the list of View follows an arrow, but no jump where the numbers begin elsewhere than
// at 1.
TEST_F(Jump, GoesByTheDifferenceOfNumbersInEveryWindowAndSaysNothing) {
  addDives(11, 15);
  start();
  const struct {
    MenuItem MDIForm1::*command;
    const char *button, *focusBehindNumber;
  } windows[] = {{&MDIForm1::Menü3a, "Command1", "Command1"},
                 {&MDIForm1::Menü2b, "Command4", "Text2"},
                 {&MDIForm1::Menü2c, "Command2", "Command2"}};
  const struct {
    const char *answer, *arrives;
    bool isNumber = true;
  } cases[] = {{"12", "12"}, {"15", "15"}, {" 15 ", "15"},       {"11", "11"},     {"0", "13"},
               {"10", "13"}, {"16", "13"}, {"abc", "13", false}, {"", "13", false}};
  for (const auto& window : windows) {
    click(app->MDIForm1().*window.command);
    auto& form = *app->activeForm();
    auto& button = *dynamic_cast<Button*>(form.control(window.button));
    auto& data = *dynamic_cast<DataControl*>(form.control("Data1"));
    for (const auto& [answer, arrives, isNumber] : cases) {
      SCOPED_TRACE(form.name() + ": " + answer);
      press(data, Navigator::Arrow::First);
      data.Recordset().Move(2);
      desktop->answerInput(answer);
      click(button);
      EXPECT_EQ(desktop->inputPrompts.back(),
                "Jump to dive-#: Please enter a dive number between 11 and 15!");
      EXPECT_EQ(dynamic_cast<TextBox*>(form.control("Text1"))->text(), arrives);
      EXPECT_EQ(form.activeControl()->name(), isNumber ? window.focusBehindNumber : window.button);
      EXPECT_EQ(desktop->texts(), std::vector<std::string>{});
      if (const auto* list = dynamic_cast<ListBox*>(form.control("List1"))) {
        EXPECT_EQ(list->text(), "11");
      }
    }
  }
}

}  // namespace
}  // namespace nautrel
