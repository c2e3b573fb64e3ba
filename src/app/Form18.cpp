// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/Form18.h"

#include "app/MDIForm1.h"
#include "platform/errors.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/placing.h"

namespace nautrel {

namespace {

std::vector<std::string> windowsOfTheStart() {
  std::vector<std::string> names{"<no>"};
  for (const auto& window : windowTable())
    if (!window.start.empty()) names.emplace_back(window.start);
  return names;
}

}  // namespace

Form18::Form18(Shell& app)
    : Form(app, "Form18", {.caption = "Preferences", .width = 6600, .height = 4800}),
      Combo1(*this, "Combo1", ComboBox::Style::ListOnly, windowsOfTheStart()),
      CommonDialog1(app.desktop(), {.title = "Load background image",
                                    .filter = "Graphics (*.bmp; *.dib; *.jpg; *.gif; *.wmf; "
                                              "*.emf)|*.bmp;*.jpg;*.gif;*.wmf;*.emf;*.dib",
                                    .pictures = true}),
      app_(app) {
  Frame3.holds({&Picture1, &Command2});
  Frame4.holds({&Text1, &Command5});
  Frame1.holds({&Combo1});
  Frame2.holds({&Option1, &Option2, &Label4, &Label5, &Label6, &Label7, &Label8, &Label9, &Label10,
                &Label11});
  SSTab1.pageHolds(0, {&Frame3, &Frame4});
  SSTab1.pageHolds(1, {&Frame1, &Frame2});
  enableSize(false);
  Command4.setEnabled(false);
  Command1.setCancel();
  Picture1.Click = [this] { Picture1_Click(); };
  Command1.Click = [this] { Command1_Click(); };
  Command2.Click = [this] { Command2_Click(); };
  Command3.Click = [this] { Command3_Click(); };
  Command4.Click = [this] { Command4_Click(); };
  Command5.Click = [this] { Command5_Click(); };
  Combo1.Click = Text1.Change = [this] { edited(); };
  Option1.Click = [this] { Option1_Click(); };
  Option2.MouseUp = [this] { Option2_MouseUp(); };
}

MDIForm1& Form18::frame() {
  return app_.window<MDIForm1>();
}

void Form18::Form_Load() {
  placeInFrame(*this, app_.MDIForm1());
  showSettings();
  app_.Modul1().EinstellungenOffen = true;
  // What the settings brought into the controls is no change of theirs.
  Command4.setEnabled(false);
}

// A setting that is absent or no value of its control leaves the control as it was.
void Form18::showSettings() {
  const auto start = [this](const char* key) { return desktop().GetSetting("Start", key); };
  resumeNext(
      [&] { Picture1.setBackColor(toInt32(number(desktop().GetSetting("Colors", "Main")))); });
  resumeNext([&] { Combo1.setText(start("Window")); });
  resumeNext([&] { Text1.setText(start("Grafic")); });
  if (!frame().hasFreeSize()) return;
  Option2.setOn(true);
  enableSize(true);
  Label4.setCaption(start("Breite"));
  Label5.setCaption(start("Höhe"));
  Label6.setCaption(start("Links"));
  Label7.setCaption(start("Oben"));
}

void Form18::edited() {
  Command4.setEnabled(true);
}

void Form18::showColor(long color) {
  Picture1.setBackColor(color);
  frame().setBackColor(color);
  edited();
}

void Form18::Picture1_Click() {
  CommonDialog1.setColor(Picture1.BackColor());
  try {
    CommonDialog1.ShowColor();
  } catch (const RunTimeError& failure) {
    if (failure.number == DialogCancelled) return;
  }
  showColor(CommonDialog1.Color());
}

void Form18::Command2_Click() {
  showColor(kStandardColor);
}

void Form18::Command5_Click() {
  CommonDialog1.setFlags(4);
  try {
    CommonDialog1.ShowOpen();
    Text1.setText(CommonDialog1.FileName());
  } catch (const RunTimeError&) {
  }
}

void Form18::enableSize(bool enabled) {
  for (auto* label : {&Label4, &Label5, &Label6, &Label7, &Label8, &Label9, &Label10, &Label11})
    label->setEnabled(enabled);
}

void Form18::Option1_Click() {
  edited();
  enableSize(false);
  for (auto* value : {&Label4, &Label5, &Label6, &Label7}) value->setCaption(MDIForm1::kNoSize);
}

// Answers a press alone: chosen by an arrow key, the values wait for the next resize.
void Form18::Option2_MouseUp() {
  edited();
  enableSize(true);
  showFrameSize();
}

void Form18::showFrameSize() {
  Label4.setCaption(text(frame().Width()));
  Label5.setCaption(text(frame().Height()));
  Label6.setCaption(text(frame().Left()));
  Label7.setCaption(text(frame().Top()));
}

// The settings are written first: a path that cannot be loaded ends the program and is kept.
void Form18::save() {
  const auto start = [this](const char* key, const std::string& value) {
    desktop().SaveSetting("Start", key, value);
  };
  desktop().SaveSetting("Colors", "Main", std::to_string(Picture1.BackColor()));
  start("Window", Combo1.text());
  if (Option1.on()) start("Fenster", "Max");
  if (Option2.on()) {
    if (Label4.caption() == MDIForm1::kNoSize) showFrameSize();
    start("Breite", Label4.caption());
    start("Höhe", Label5.caption());
    start("Links", Label6.caption());
    start("Oben", Label7.caption());
    start("Fenster", "Ben");
  }
  start("Grafic", Text1.text());
  frame().setPicture(desktop().LoadPicture(Text1.text()));
}

void Form18::Command3_Click() {
  save();
  Unload();
}

void Form18::Command4_Click() {
  Command4.setEnabled(false);
  save();
}

void Form18::Command1_Click() {
  frame().applyBackground();
  Unload();
}

void Form18::Form_Unload() {
  app_.Modul1().EinstellungenOffen = false;
}

}  // namespace nautrel
