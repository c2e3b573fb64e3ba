// SPDX-License-Identifier: GPL-2.0-or-later
// What a screen reader is told of every window.
#include <QAccessible>
#include <QRegularExpression>

#include "data/grid.h"
#include "gui/gui_test.h"
#include "platform/chart.h"
#include "platform/drawing.h"

namespace nautrel {
namespace {

class ScreenReader : public GuiTest {
 protected:
  /// Everything that is to be seen, from the top of the window's tree down.
  void walk(QAccessibleInterface& thing, const std::string& where) {
    static const QRegularExpression internal(
        "^(qt_.*|(Text|Command|Option|Check|Label|Frame|List|Combo|SpinButton|SSTab|Data|Image|"
        "Shape"
        "|Picture|Unit|Dot|MSChart|MSFlexGrid|Form|MDIForm|Toolbar|StatusBar|ProgressBar|Men.)"
        "\\d+[a-z]?|UnitText\\d+)$");
    const auto name = thing.text(QAccessible::Name);
    const auto here = where + " / " + fromQt(name);
    for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Help})
      EXPECT_FALSE(thing.text(kind).contains(internal)) << here;
    // A dive has cells with nothing in them.
    const bool cell = thing.role() == QAccessible::Cell;
    if (thing.state().focusable && !thing.state().invisible && !cell) {
      EXPECT_FALSE(name.isEmpty()) << here << ", role " << thing.role();
      EXPECT_NE(thing.role(), QAccessible::NoRole) << here;
      EXPECT_NE(thing.role(), QAccessible::Client) << here;
      ++things;
    }
    for (int i = 0; i < thing.childCount(); ++i)
      if (auto* child = thing.child(i); child != nullptr && child->isValid()) walk(*child, here);
  }

  struct Told {
    QAccessible::Role role;
    std::string value;
  };
  static Told wanted(const Control& control) {
    if (const auto* box = dynamic_cast<const TextBox*>(&control))
      return {QAccessible::EditableText, box->text()};
    if (const auto* combo = dynamic_cast<const ComboBox*>(&control))
      return {QAccessible::ComboBox, combo->text()};
    const std::pair<bool, QAccessible::Role> roles[] = {
        {dynamic_cast<const Button*>(&control) != nullptr, QAccessible::Button},
        {dynamic_cast<const CheckBox*>(&control) != nullptr, QAccessible::CheckBox},
        {dynamic_cast<const OptionButton*>(&control) != nullptr, QAccessible::RadioButton},
        {dynamic_cast<const ListBox*>(&control) != nullptr, QAccessible::List},
        {dynamic_cast<const Grid*>(&control) != nullptr, QAccessible::Table},
        {dynamic_cast<const Navigator*>(&control) != nullptr, QAccessible::ToolBar},
        {dynamic_cast<const SpinButton*>(&control) != nullptr, QAccessible::SpinBox},
        {dynamic_cast<const Chart*>(&control) != nullptr, QAccessible::Chart},
        {dynamic_cast<const Image*>(&control) != nullptr, QAccessible::Graphic},
        {dynamic_cast<const Drawing*>(&control) != nullptr, QAccessible::Graphic}};
    for (const auto& [is, role] : roles)
      if (is) return {role, {}};
    const auto* picture = dynamic_cast<const PictureBox*>(&control);
    return {picture != nullptr && picture->takesFocus() && picture->tabStop() ? QAccessible::Button
                                                                              : QAccessible::NoRole,
            {}};
  }

  void expectTold(const Control& control, QAccessibleInterface& thing, const std::string& where) {
    const auto [role, value] = wanted(control);
    const auto name = fromQt(thing.text(QAccessible::Name));
    const auto told = fromQt(thing.text(QAccessible::Value));
    if (role != QAccessible::NoRole) {
      EXPECT_EQ(thing.role(), role) << where;
      EXPECT_FALSE(name.empty()) << where;
    }
    if (!value.empty()) {
      EXPECT_EQ(told, value) << where;
    }
    if (role == QAccessible::Chart) {
      EXPECT_FALSE(told.empty()) << where;
    }
    const auto* label = dynamic_cast<const Label*>(&control);
    if (label != nullptr && label->caption() != "" &&
        dynamic_cast<const Frame*>(label) == nullptr) {
      EXPECT_TRUE(name.ends_with(label->caption())) << where << ": " << name;
    }
    // A figure alone says nothing.
    if (label != nullptr && tryNumber(label->caption(), desktop->places)) {
      EXPECT_NE(name, label->caption()) << where;
    }
  }

  int things = 0;
};

TEST_F(ScreenReader, IsToldTheRoleNameAndValueOfAllThatIsSeen) {
  addDives(1, 3);
  start();
  walk(*QAccessible::queryAccessibleInterface(window(app->MDIForm1())), "main window");
  forEveryWindow([&](Form& form) {
    walk(*QAccessible::queryAccessibleInterface(window(form)), form.name());
    for (const auto& binding : looks->viewOf(form)->bindings())
      expectTold(binding->control(), *QAccessible::queryAccessibleInterface(binding->widget()),
                 form.name() + "." + binding->control().name());
  });
  EXPECT_GT(things, 200);
}

TEST_F(ScreenReader, PressesArrowsAndSamplesAndHearsWhatTheNavigatorGoesTo) {
  addDives(1, 3);
  start();
  const auto thing = [&](const Control& control) {
    return QAccessible::queryAccessibleInterface(&widget(control));
  };
  app->handle([&] { app->show(Windows::SortLogbook); });
  settle();
  auto& sort = *app->ifLoaded(Windows::SortLogbook);
  auto* arrows = thing(*sort.control("SpinButton1"));
  const auto before = arrows->text(QAccessible::Value).toInt();
  arrows->actionInterface()->doAction(QAccessibleActionInterface::increaseAction());
  EXPECT_EQ(arrows->text(QAccessible::Value).toInt(), before + 1);

  app->handle([&] { app->show(Windows::DiveEquipment); });
  settle();
  auto& equipment = *app->ifLoaded(Windows::DiveEquipment);
  EXPECT_EQ(thing(*equipment.control("Data1"))->child(2)->text(QAccessible::Name), "Next item");

  app->handle([&] { app->show(Windows::Preferences); });
  settle();
  auto* sample = thing(*app->ifLoaded(Windows::Preferences)->control("Picture1"));
  EXPECT_EQ(sample->text(QAccessible::Value), "red 192, green 192, blue 192");
  desktop->answerColor(255);
  sample->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
  settle();
  EXPECT_EQ(sample->text(QAccessible::Value), "red 255, green 0, blue 0");
}

}  // namespace
}  // namespace nautrel
