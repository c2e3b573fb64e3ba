// SPDX-License-Identifier: GPL-2.0-or-later
#include "dives/DiveEntryForm.h"

#include "platform/errors.h"
#include "platform/text.h"
#include "shell/Shell.h"

namespace nautrel {
namespace {

constexpr double kLongDive = 180;  // minutes
constexpr double kDeepDive = 330;  // feet

}  // namespace

DiveEntryForm::DiveEntryForm(Shell& app, std::string name, Design design,
                             const Differences& differences)
    : Form(app, std::move(name), std::move(design)),
      SSTab1(*this, "SSTab1",
             {"General", "Comments", differences.severalInfo, differences.linkedGraphic}),
      Check7(*this, "Check7", differences.repDive),
      Text21(*this, "Text21", {.maxLength = differences.pathLength}),
      Command1(*this, "Command1", {}),
      CommonDialog1(app.desktop(), {.title = "Link a graphic with this dive",
                                    .filter = "Graphics (*.bmp; *.dib; *.jpg; *.gif; *.wmf; *.emf)|"
                                              "*.bmp;*.jpg;*.gif;*.wmf;*.emf;*.dib",
                                    .pictures = true}),
      app_(app) {
  placeOnPages();
  bindColumns();
  bindDate();
  bindNumbers();
  Text11.GotFocus = [this] { Command1.setDefault(false); };
  Text11.LostFocus = [this] { Command1.setDefault(true); };
  Command5.Click = [this] { browse(); };
  Image4.Drop = [this](const std::string& path) { link(path); };
}

void DiveEntryForm::placeOnPages() {
  SSTab1.pageHolds(2, {&Frame1, &Frame2, &Frame3, &Frame5});
  SSTab1.pageHolds(3, {&Command5, &Image4});
  placeColumns(*this, {&Frame1, &Frame2, &Frame3, &Frame5});
}

// The number is the program's own. The repetitive dive is the one mark whose click is no edit.
void DiveEntryForm::bindColumns() {
  eachColumn(
      *this,
      [this](auto&, TextBox& box) {
        if (!box.locked()) box.Change = [this] { edited(); };
      },
      [this](auto&, OptionButton& option) {
        option.Click = [this] { edited(); };
        option.DblClick = [&option] { option.setOn(false); };
      },
      [this](auto&, CheckBox& check) { check.Click = [this] { edited(); }; });
  Check7.Click = nullptr;
}

void DiveEntryForm::bindRule(TextBox& box, const Event& rule) {
  box.Change = [this, rule] {
    rule();
    edited();
  };
}

void DiveEntryForm::bindDate() {
  bindRule(Text5, [this] { jumpAbove(Text5, 9, Text6); });
  bindRule(Text6, [this] { jumpAbove(Text6, 9, Text7); });
  bindRule(Text7, [this] { jumpAbove(Text7, 999, Text8); });
  Text5.LostFocus = [this] { leaveDatePart(Text5, 31, "Day is not valid"); };
  Text6.LostFocus = [this] { leaveDatePart(Text6, 12, "Month is not valid"); };
  Text7.LostFocus = [this] { leaveYear(); };
}

void DiveEntryForm::bindNumbers() {
  bindRule(Text9, [this] {
    keepNotNegative(Text9);
    resumeNext([&] { Text9.setText(text(toInt16(number(Text9.text())))); });
  });
  bindRule(Text10, [this] { keepNotNegative(Text10); });
  Text9.LostFocus = [this] { leaveDiveTime(); };
  Text10.LostFocus = [this] { leaveDepth(); };
}

void DiveEntryForm::jumpAbove(const TextBox& box, double limit, TextBox& next) {
  const auto value = tryNumber(box.text());
  if (value && *value > limit) resumeNext([&] { next.SetFocus(); });
}

// The focus is back before the message comes; the year does it the other way round.
void DiveEntryForm::leaveDatePart(TextBox& box, double last, const char* message) {
  const std::string& part = box.text();
  if (part.size() == 1 && part >= "1" && part <= "9") box.setText("0" + part);
  if (box.isEmpty()) return;
  const auto value = tryNumber(box.text());
  if (value && *value >= 1 && *value <= last) return;
  box.SetFocus();
  MsgBox(message);
}

void DiveEntryForm::leaveYear() {
  if (Text7.isEmpty()) return;
  const auto value = tryNumber(Text7.text());
  if (value && *value >= 1000) return;
  MsgBox("Please enter the year with 4 digits (e.g. 1999)");
  Text7.SetFocus();
}

void DiveEntryForm::keepNotNegative(TextBox& box) {
  const auto value = tryNumber(box.text());
  if (!value || *value < 0) box.setText("");
}

void DiveEntryForm::leaveDiveTime() {
  const auto value = tryNumber(Text9.text());
  if (!value || *value <= kLongDive) return;
  if (MsgBox("Ist die Tauchzeit wirklich korrekt?", kAskYes, "Tauchzeit") == kNo) Text9.SetFocus();
}

void DiveEntryForm::leaveDepth() {
  const auto value = tryNumber(Text10.text());
  if (!value) return;
  Text10.setText(text(*value));
  if (const auto depth = tryNumber(Text10.text()); !depth || *depth <= kDeepDive) return;
  if (MsgBox("Is the depth really correct?", kAskYes, "Depth") == kNo) Text10.SetFocus();
}

void DiveEntryForm::Felder() {
  std::string missing;
  eachColumn(*this, [&](const DiveColumn& column, const TextBox& box) {
    if (column.required != nullptr && box.isEmpty()) missing += column.required;
  });
  if (missing.empty()) return;
  Text12.setText("ende");
  MsgBox(missing + "could not be empty!");
}

bool DiveEntryForm::complete() {
  Text12.setText("");
  Felder();
  return Text12.text() != "ende";
}

void DiveEntryForm::browse() {
  try {
    CommonDialog1.setFlags(4);
    CommonDialog1.ShowOpen();
    link(CommonDialog1.FileName());
  } catch (const RunTimeError&) {
  }
}

void DiveEntryForm::link(const std::string& path) {
  try {
    Text21.setText(path);
    Image4.setPicture(desktop().LoadPicture(Text21.text()));
  } catch (const RunTimeError&) {
  }
}

}  // namespace nautrel
