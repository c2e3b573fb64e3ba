#include "dives/DiveEntryForm.h"

#include "platform/errors.h"
#include "platform/text.h"
#include "shell/Nautrel.h"

namespace nautrel {
namespace {

constexpr double kLongDive = 180;  // minutes
constexpr double kDeepDive = 330;  // feet

}  // namespace

DiveEntryForm::DiveEntryForm(Nautrel& app, std::string name, Design design,
                             const Differences& differences)
    : Form(app, std::move(name), std::move(design)),
      SSTab1(*this, "SSTab1",
             {"General", "Comments", differences.severalInfo, differences.linkedGraphic}),
      Text21(*this, "Text21", {.maxLength = differences.pathLength}),
      Check7(*this, "Check7", differences.repDive),
      Command1(*this, "Command1", {}),
      CommonDialog1(app.desktop(), {.title = "Link a graphic with this dive",
                                    .filter = "Graphics (*.bmp; *.dib; *.jpg; *.gif; *.wmf; *.emf)|"
                                              "*.bmp;*.jpg;*.gif;*.wmf;*.emf;*.dib"}),
      app_(app) {
  placeOnPages();
  bindDate();
  bindNumbers();
  bindMarks();
  Text11.GotFocus = [this] { Command1.setDefault(false); };
  Text11.LostFocus = [this] { Command1.setDefault(true); };
  for (auto& [column, option] : optionColumns())
    option->DblClick = [option = option] { option->setOn(false); };
  Command5.Click = [this] { browse(); };
}

void DiveEntryForm::placeOnPages() {
  Frame1.holds({&Option1, &Option2});
  Frame2.holds({&Option3, &Option4});
  Frame3.holds({&Option5, &Option6, &Text17, &Text13, &Text18});
  Frame5.holds({&Option7, &Option8, &Option9});
  SSTab1.pageHolds(
      0, {&Text1, &Text2, &Text3, &Text4, &Text5, &Text6, &Text7, &Text8, &Text9, &Text10});
  SSTab1.pageHolds(1, {&Text11});
  SSTab1.pageHolds(2, {&Frame1, &Frame2, &Frame3, &Frame5, &Text14, &Text15, &Text16, &Text19,
                       &Check6, &Check7});
  SSTab1.pageHolds(3, {&Text21, &Command5, &Image4});
}

void DiveEntryForm::bindDate() {
  Text5.Change = [this] {
    jumpAbove(Text5, 9, Text6);
    edited();
  };
  Text6.Change = [this] {
    jumpAbove(Text6, 9, Text7);
    edited();
  };
  Text7.Change = [this] {
    jumpAbove(Text7, 999, Text8);
    edited();
  };
  Text5.LostFocus = [this] { leaveDatePart(Text5, 31, "Day is not valid"); };
  Text6.LostFocus = [this] { leaveDatePart(Text6, 12, "Month is not valid"); };
  Text7.LostFocus = [this] { leaveYear(); };
}

void DiveEntryForm::bindNumbers() {
  Text9.Change = [this] {
    keepNotNegative(Text9);
    resumeNext([&] { Text9.setText(text(toInt16(number(Text9.text())))); });
    edited();
  };
  Text10.Change = [this] {
    keepNotNegative(Text10);
    edited();
  };
  Text9.LostFocus = [this] { leaveDiveTime(); };
  Text10.LostFocus = [this] { leaveDepth(); };
}

void DiveEntryForm::bindMarks() {
  for (auto* box : {&Text2, &Text3, &Text4, &Text8, &Text11, &Text13, &Text14, &Text15, &Text16,
                    &Text17, &Text18, &Text19, &Text21})
    box->Change = [this] { edited(); };
  for (auto& [column, option] : optionColumns()) option->Click = [this] { edited(); };
  Check6.Click = [this] { edited(); };
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
  const std::pair<const TextBox*, const char*> required[] = {{&Text5, "Day - "},
                                                             {&Text6, "Month - "},
                                                             {&Text7, "Year - "},
                                                             {&Text9, "Divetime - "},
                                                             {&Text10, "Depth - "}};
  std::string missing;
  for (const auto& [box, word] : required)
    if (box->isEmpty()) missing += word;
  if (missing.empty()) return;
  Text12.setText("ende");
  MsgBox(missing + "could not be empty!");
}

void DiveEntryForm::browse() {
  try {
    CommonDialog1.setFlags(4);
    CommonDialog1.ShowOpen();
    Text21.setText(CommonDialog1.FileName());
    Image4.setPicture(desktop().LoadPicture(Text21.text()));
  } catch (const RunTimeError&) {
  }
}

std::array<DiveEntryForm::TextColumn, 17> DiveEntryForm::textColumns() {
  return {{{"Land", &Text2},
           {"Ort", &Text3},
           {"Platz", &Text4},
           {"Tag", &Text5},
           {"Monat", &Text6},
           {"Jahr", &Text7},
           {"Buddy", &Text8},
           {"Zeit", &Text9},
           {"Tiefe", &Text10},
           {"Lang", &Text11},
           {"Liter", &Text17},
           {"Bars", &Text13},
           {"Bare", &Text18},
           {"Wetter", &Text14},
           {"Anzug", &Text15},
           {"Höhe", &Text16},
           {"Blei", &Text19}}};
}

std::array<DiveEntryForm::OptionColumn, 9> DiveEntryForm::optionColumns() {
  return {{{"Salz", &Option1},
           {"Süß", &Option2},
           {"Ufer", &Option3},
           {"Boot", &Option4},
           {"Alu", &Option5},
           {"Stahl", &Option6},
           {"Sichtg", &Option7},
           {"Sichtm", &Option8},
           {"Sichts", &Option9}}};
}

}  // namespace nautrel
