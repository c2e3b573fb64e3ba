// SPDX-License-Identifier: GPL-2.0-or-later
#include "calculators/Form22.h"

#include "shell/Shell.h"
#include "shell/placing.h"

namespace nautrel {

Figure Form22::rectangle(double left, double top, double width, double height, long color) {
  return {.left = left, .top = top, .width = width, .height = height, .color = color};
}

Figure Form22::bubble(double left, double top) {
  return {.kind = Figure::Kind::Circle,
          .left = left,
          .top = top,
          .width = 135,
          .height = 135,
          .color = kAir,
          .outlined = true};
}

Figure Form22::label(double left, double top, double width, double height) {
  return {.left = left, .top = top, .width = width, .height = height};
}

Figure Form22::depthLabel(double top) {
  auto figure = label(480, top, 1095, 255);
  figure.alignRight = true;
  return figure;
}

Form22::Form22(Shell& app)
    : Form(app, "Form22", {.caption = "Calculations", .width = 4785, .height = 4470}), app_(app) {
  arrangePages();
  bindHandlers();
  Command2.setCancel();
  Picture2.setVisible(false);
}

void Form22::arrangePages() {
  Picture1.holds({&Shape1, &Line1, &Text1, &Label6, &Text3, &Text4, &Text2, &Label9, &Label11,
                  &Label13, &Command1, &Command2, &Command3});
  Picture2.holds({&Shape2, &Line2,   &Shape3,  &Shape4,  &Line3,   &Line4,  &Line5,
                  &Line6,  &Line7,   &Line8,   &Shape5,  &Shape6,  &Shape7, &Shape8,
                  &Shape9, &Shape10, &Label15, &Label17, &Label16, &Line9,  &Line10,
                  &Line11, &Line12,  &Line13,  &Command4});
  SSTab1.pageHolds(0, {&Picture1, &Picture2});
  SSTab1.pageHolds(
      1, {&Label23, &Option1, &Option2, &Text5, &Text6, &Command7, &Command6, &Command5, &Shape11,
          &Line14, &Shape12, &Line15, &Line16, &Line17, &Line18, &Line19, &Line20});
  for (auto* box : {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6}) box->setTabStop(false);
  setTabOrder({&Command1, &Command3, &Command2, &Command4, &Option1, &Option2, &Command7, &Command6,
               &Command5, &SSTab1});
}

void Form22::bindHandlers() {
  SSTab1.Click = [this] { SSTab1_Click(); };
  for (auto* box : {&Text1, &Text2, &Text3, &Text4})
    box->GotFocus = [this, box] { Text_GotFocus(*box); };
  Text5.GotFocus = [this] { Text5_GotFocus(); };
  Text6.GotFocus = [this] { Text6_GotFocus(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
  Command6.Click = [this] { Command6_Click(); };
  Command7.Click = [this] { Command7_Click(); };
}

void Form22::Form_Load() {
  placeInFrame(*this, app_.MDIForm1());
}

void Form22::SSTab1_Click() {
  if (SSTab1.Tab() == 1) return Text5.SetFocus();
  // The scene may be in front of the table; what it covers is no place for the focus.
  Command1.setDefault(true);
  Command4.SetFocus();
  Text1.SetFocus();
}

void Form22::Text_GotFocus(TextBox& box) {
  box.selectAll();
  Command1.setDefault(true);
}

void Form22::Text5_GotFocus() {
  Command6.setDefault(true);
  Command7.setCaption("Set weight");
  Text5.selectAll();
}

void Form22::Text6_GotFocus() {
  Command6.setDefault(true);
  Command7.setCaption("Set volume");
  Text6.selectAll();
}

AirTexts Form22::typed() const {
  return {Text1.text(), Text2.text(), Text3.text(), Text4.text()};
}

void Form22::Berechnen() {
  const auto results = airAtDepths(typed(), locale());
  Label6.setCaption(results.pressure1);
  Label9.setCaption(results.pressure2);
  Label11.setCaption(results.volume);
  Label13.setCaption(results.density);
}

void Form22::Command1_Click() {
  Berechnen();
}
void Form22::Command2_Click() {
  Unload();
}

void Form22::Command3_Click() {
  Berechnen();
  const AirResults shown{Label6.caption(), Label9.caption(), Label11.caption(), Label13.caption()};
  scene_ = airScene(std::move(scene_), typed(), shown, locale());
  showScene();
  bringToFront(Picture2, Picture1);
}

void Form22::showScene() {
  Shape3.setHeight(kTwips * static_cast<double>(scene_.upperAir));
  Shape4.setHeight(kTwips * static_cast<double>(scene_.lowerAir));
  Label17.setCaption(scene_.upperDepth);
  Label16.setCaption(scene_.lowerDepth);
  Label15.setCaption(scene_.escapeNote);
  Label15.setVisible(scene_.airEscapes);
  for (auto* bubble : {&Shape5, &Shape6, &Shape7, &Shape8, &Shape9, &Shape10})
    bubble->setVisible(scene_.airEscapes);
  for (auto* line : {&Line10, &Line11}) line->setVisible(scene_.arrowUp);
  for (auto* line : {&Line12, &Line13}) line->setVisible(scene_.arrowDown);
}

void Form22::Command4_Click() {
  bringToFront(Picture1, Picture2);
}

// The new picture shows first, so that the focus finds a place in it.
void Form22::bringToFront(PictureBox& front, PictureBox& back) {
  front.setVisible(true);
  back.setVisible(false);
}

void Form22::Command5_Click() {
  Unload();
}

Water Form22::water() const {
  return Option2.on() ? Water::Sweet : Water::Salt;
}

void Form22::Command6_Click() {
  const auto result = buoyancy(water(), Text5.text(), Text6.text(), locale());
  Label23.setCaption(result.text);
  for (auto* line : {&Line15, &Line16, &Line17})
    line->setVisible(result.tendency == Tendency::Rises);
  for (auto* line : {&Line18, &Line19, &Line20})
    line->setVisible(result.tendency == Tendency::Sinks);
}

void Form22::Command7_Click() {
  if (Command7.caption() == "Set weight")
    Text6.setText(weightToHover(water(), Text5.text(), Text6.text(), locale()));
  else
    Text5.setText(volumeToHover(water(), Text6.text(), Text5.text(), locale()));
}

}  // namespace nautrel
