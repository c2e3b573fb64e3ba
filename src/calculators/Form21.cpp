// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/Form21.h"

#include "shell/Shell.h"
#include "shell/placing.h"

namespace nautrel {

Form21::Form21(Shell& app)
    : Form(app, "Form21", {.caption = "Unit Calculations", .width = 4575, .height = 4470}),
      app_(app) {
  arrangePages();
  bindBoxes();
  bindButtons();
}

// The keys walk the lengths backwards, from the button and the last box to the first.
void Form21::arrangePages() {
  SSTab1.pageHolds(0, {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text7, &Text8, &Text9,
                       &Text10, &Command1});
  SSTab1.pageHolds(
      1, {&Text11, &Text12, &Text13, &Text14, &Text36, &Text37, &Image1, &Command2, &Command3});
  SSTab1.pageHolds(
      2, {&Text15, &Text16, &Text17, &Text18, &Text19, &Text38, &Text39, &Image2, &Command4});
  SSTab1.pageHolds(3, {&Text20, &Text21, &Text22, &Text23, &Text24, &Text25, &Text35, &Command6});
  SSTab1.pageHolds(4, {&Text26, &Text27, &Text28, &Image3, &Command8, &Command9});
  SSTab1.pageHolds(5,
                   {&Text29, &Text30, &Text31, &Text32, &Text33, &Text34, &Command10, &Command11});
  setTabOrder({&Command1, &Text10,   &Text9,  &Text8,  &Text7,  &Text6,     &Text4,     &Text3,
               &Text2,    &Text1,    &Text11, &Text12, &Text13, &Text14,    &Text36,    &Text37,
               &Command2, &Command3, &Text19, &Text18, &Text15, &Text16,    &Text17,    &Text38,
               &Text39,   &Command4, &Text20, &Text21, &Text22, &Text23,    &Text24,    &Text25,
               &Text35,   &Command6, &Text26, &Text28, &Text27, &Command8,  &Command9,  &Text29,
               &Text30,   &Text31,   &Text32, &Text33, &Text34, &Command10, &Command11, &SSTab1});
}

void Form21::bindBoxes() {
  for (const auto page : {UnitPage::Length, UnitPage::Volumes, UnitPage::Weight, UnitPage::Pressure,
                          UnitPage::Temperature, UnitPage::Wind})
    for (const int number : boxesOf(page)) {
      auto* box = static_cast<TextBox*>(control("Text" + std::to_string(number)));
      box->GotFocus = [this, number] { Text_GotFocus(number); };
      box->Change = [this, number] { Text_Change(number); };
      boxes_[number] = box;
    }
}

void Form21::bindButtons() {
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command6.Click = [this] { Command6_Click(); };
  Command8.Click = [this] { Command8_Click(); };
  Command9.Click = [this] { Command9_Click(); };
  Command10.Click = [this] { Command10_Click(); };
  Command11.Click = [this] { Command11_Click(); };
  Command3.setCancel();
}

void Form21::Form_Load() {
  Text5.setText("1");
  placeInFrame(*this, app_.MDIForm1());
}

TextBox& Form21::box(int number) const {
  return *boxes_.at(number);
}

void Form21::Text_GotFocus(int number) {
  Text5.setText(std::to_string(number));
}

// The boxes written here raise their own Change; the active number ends it there.
void Form21::Text_Change(int number) {
  if (Text5.text() != std::to_string(number)) return;
  const auto page = boxesOf(pageOf(number));
  BoxTexts texts;
  for (const int each : page) texts[each] = box(each).text();
  texts = convertUnits(number, std::move(texts), locale());
  for (const int each : page)
    if (each != number) box(each).setText(texts[each]);
}

void Form21::empty(UnitPage page) {
  for (const int number : boxesOf(page)) box(number).setText("");
}

void Form21::Leer1() {
  empty(UnitPage::Length);
}
void Form21::Leer2() {
  empty(UnitPage::Volumes);
}
void Form21::Leer3() {
  empty(UnitPage::Weight);
}
void Form21::Leer4() {
  empty(UnitPage::Pressure);
}
void Form21::Leer5() {
  empty(UnitPage::Temperature);
}
void Form21::Leer6() {
  empty(UnitPage::Wind);
}

void Form21::Command1_Click() {
  Leer1();
  Text5.setText("1");
  Text1.SetFocus();
}

void Form21::Command2_Click() {
  Leer2();
  Text11.SetFocus();
  Text5.setText("11");
}

void Form21::Command4_Click() {
  Leer3();
  Text19.SetFocus();
  Text5.setText("19");
}

void Form21::Command6_Click() {
  Leer4();
  Text20.SetFocus();
  Text5.setText("20");
}

void Form21::Command8_Click() {
  Leer5();
  Text26.SetFocus();
  Text5.setText("26");
}

void Form21::Command10_Click() {
  Leer6();
  Text29.SetFocus();
  Text5.setText("29");
}

void Form21::Command3_Click() {
  Unload();
}
void Form21::Command9_Click() {
  Unload();
}
void Form21::Command11_Click() {
  Unload();
}

}  // namespace nautrel
