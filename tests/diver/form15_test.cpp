// SPDX-License-Identifier: GPL-2.0-or-later
#include "diver/Form15.h"

#include "support/logbook.h"

namespace nautrel {
namespace {

using Texts = std::vector<std::string>;
using Rows = std::vector<Texts>;

const Columns kColumns{"Gegenstand", "Fabrikant", "Seriennummer", "Kaufdatum", "Garantie",
                       "Kaufort",    "Info",      "Nr",           "Preis"};
const Shown kQuestion{"Delete current record?", 276, "Delete equipment"};

class Equipment : public LogbookTest {
 protected:
  Form15& open() {
    start();
    click(app->MDIForm1().Menü1c);
    return app->Form15();
  }
  void addItem(const std::string& name, const std::string& number) {
    add({{"Gegenstand", name}, {"Nr", number}}, "Ausrüstung");
  }
  static std::vector<TextBox*> boxes(Form15& form) {
    return {&form.Text1, &form.Text2, &form.Text3, &form.Text4, &form.Text5,
            &form.Text6, &form.Text7, &form.Text8, &form.Text9};
  }
  static Texts shown(Form15& form) {
    Texts texts;
    for (const auto* box : boxes(form)) texts.push_back(box->text());
    return texts;
  }
  static void expectBrowsing(const Form15& form, bool browsing) {
    for (const Control* control : std::initializer_list<const Control*>{
             &form.Command1, &form.Command2, &form.Command4, &form.Data1})
      EXPECT_EQ(control->enabled(), browsing) << control->name();
    EXPECT_EQ(form.Command3.enabled(), !browsing);
    EXPECT_TRUE(form.Command5.enabled());
  }
};

TEST_F(Equipment, TheTitleCountsDivesUntilTheItemsAreCounted) {
  addDives(1, 57);
  for (const auto* name : {"Fins", "Mask", "Suit"}) addItem(name, "1");
  auto& form = open();
  EXPECT_EQ(form.caption(), "Dive equipment - records: 57");
  EXPECT_EQ(form.activeControl(), &form.Text1);
  desktop->answer(kNo);
  click(form.Command2);
  EXPECT_EQ(desktop->messages(), std::vector<Shown>{kQuestion});
  EXPECT_EQ(form.caption(), "Dive equipment - records: 3");
  EXPECT_EQ(rows("Ausrüstung", {"Gegenstand"}), (Rows{{"Fins"}, {"Mask"}, {"Suit"}}));
}

TEST_F(Equipment, AnEmptyIndexTakesItsFirstItem) {
  auto& form = open();
  EXPECT_EQ(shown(form), (Texts{"", "", "", "", "", "", "", "1", ""}));
  expectBrowsing(form, true);
  click(form.Command4);
  press(form.Data1, Navigator::Arrow::Next);
  EXPECT_EQ(rows("Ausrüstung", {"Nr"}), Rows{});

  click(form.Command1);
  expectBrowsing(form, false);
  EXPECT_EQ(form.activeControl(), &form.Text1);
  const Texts item{"Regulator", "Atlas",    "A-17", "05.03.2001", "2 years",
                   "Blue",      "Serviced", "7",    "199.50"};
  for (std::size_t i = 0; i < item.size(); ++i) {
    clear(*boxes(form)[i]);
    type(*boxes(form)[i], item[i]);
  }
  click(form.Command3);
  expectBrowsing(form, true);
  EXPECT_EQ(rows("Ausrüstung", kColumns), Rows{item});
  EXPECT_EQ(shown(form), item);
  EXPECT_EQ(form.caption(), "Dive equipment - records: 1");
}

TEST_F(Equipment, ANewItemIsDroppedByClose) {
  addItem("Fins", "1");
  auto& form = open();
  click(form.Command1);
  EXPECT_EQ(form.Text8.text(), "2");
  type(form.Text1, "Mask");
  click(form.Command1);
  click(form.Command2);
  click(form.Command4);
  press(form.Data1, Navigator::Arrow::First);
  EXPECT_EQ(form.Text1.text(), "Mask");
  press(form, Key::Escape);
  EXPECT_FALSE(app->loaded(15));
  EXPECT_EQ(rows("Ausrüstung", {"Gegenstand"}), Rows{{"Fins"}});
  click(app->MDIForm1().Menü1c);
  expectBrowsing(app->Form15(), true);
}

TEST_F(Equipment, NumbersMayRepeatAndAnEmptyItemIsStored) {
  for (const auto* number : {"1", "2", "3"}) addItem(std::string("Item ") + number, number);
  auto& form = open();
  press(form.Data1, Navigator::Arrow::Next);
  desktop->answer(kYes);
  click(form.Command2);
  EXPECT_EQ(form.Text1.text(), "Item 1");
  EXPECT_EQ(form.caption(), "Dive equipment - records: 2");
  click(form.Command1);
  click(form.Command3);
  EXPECT_EQ(form.Text8.text(), "3");
  EXPECT_EQ(rows("Ausrüstung", {"Nr"}), (Rows{{"1"}, {"3"}, {"3"}}));
  EXPECT_EQ(rows("Ausrüstung", kColumns).at(2), (Texts{"", "", "", "", "", "", "", "3", ""}));
  for (int item = 0; item < 3; ++item) {
    desktop->answer(kYes);
    click(form.Command2);
  }
  EXPECT_EQ(shown(form), Texts(9, ""));
  EXPECT_EQ(form.caption(), "Dive equipment - records: 0");
}

TEST_F(Equipment, ChangesAreStoredOrThrownAwayByMovingAndANullLeavesTheTextBefore) {
  addItem("Fins", "1");
  addItem("Mask", "2");
  auto& form = open();
  type(form.Text2, "Atlas");
  click(form.Command4);
  type(form.Text1, "Old ");
  press(form.Data1, Navigator::Arrow::Last);
  EXPECT_EQ(form.Text1.text(), "Mask");
  EXPECT_EQ(form.Text2.text(), "Atlas");
  paste(form.Text8, "9");
  type(form.Text9, "20");
  click(form.Command4);
  EXPECT_EQ(desktop->texts(), Texts{});
  EXPECT_NE(form.Text8.text(), "2");
  EXPECT_EQ(rows("Ausrüstung", {"Gegenstand", "Fabrikant", "Nr", "Preis"}),
            (Rows{{"Fins", "Atlas", "1", ""}, {"Mask", "Atlas", form.Text8.text(), "20"}}));
}

}  // namespace
}  // namespace nautrel
