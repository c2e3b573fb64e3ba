// SPDX-License-Identifier: GPL-2.0-or-later
#include "app/MDIForm1.h"

#include <optional>

#include "app/Form18.h"
#include "dives/Form3.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "evaluation/Form6.h"
#include "platform/errors.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "shell/placing.h"
#include "store/contract.h"

namespace nautrel {
namespace {

constexpr int kMostDives = 9999;
constexpr const char* kMenuRefusal = "Die Datenbank kann nicht mehr als 9999 Tauchgänge aufnehmen";
constexpr const char* kToolbarRefusal =
    "You could not insert more than 9999 dives in the database.";

std::vector<ToolbarButton> toolbarButtons() {
  const std::vector<std::vector<int>> groups = {
      {Windows::InsertDive, Windows::EditDive, Windows::DeleteDive},
      {Windows::PrintDiveList, Windows::PersonalInformation, Windows::DiveEquipment,
       Windows::SortLogbook},
      {Windows::ViewLogbook, Windows::LogbookTable},
      {Windows::SearchWord, Windows::SearchNumber, Windows::FullSearch},
      {Windows::Statistic, Windows::YearGraph, Windows::MonthGraph},
      {Windows::UnitCalculation, Windows::Calculations}};
  std::vector<ToolbarButton> buttons;
  for (const auto& group : groups) {
    buttons.emplace_back();  // the space before it
    for (const int number : group) {
      const auto& window = windowEntry(number);
      const auto tip = number == Windows::SortLogbook ? "Sort dives" : window.start;
      buttons.push_back({std::string(window.key), std::string(tip)});
    }
  }
  return buttons;
}

}  // namespace

MDIForm1::MDIForm1(Shell& app)
    : FrameForm(app, "MDIForm1",
                {.caption = "Nautrel 2.0", .width = 15360, .height = 11520, .child = false}),
      Toolbar1(*this, "Toolbar1", toolbarButtons()),
      CommonDialog1(app.desktop(), {}),
      app_(app) {
  setWindowState(WindowState::Maximized);
  arrangeMenus();
  bindCommands();
  bindToolbar();
}

void MDIForm1::arrangeMenus() {
  Menü1.setItems({&Menü1a, &Menü1f, nullptr, &Menü1b, &Menü1c, nullptr, &Menü1d, &Menü1g, &Menü1e});
  Menü2.setItems({&Menü2a, &Menü2b, &Menü2c});
  Menü3.setItems({&Menü3a, &Menü3d, nullptr, &Menü3b, &Menü3c, &Menü3e});
  Menü4.setItems({&Menü4a, &Menü4b, &Menü4c});
  Menü7.setItems({&Menü7b, &Menü7a, &Menü7c});
  Menü5.setItems({&Menü5a, &Menü5b});
  Menü6.setItems(
      {&Menü6a, &Menü6b, nullptr, &Menü6c, &Menü6d, &Menü6e, nullptr, &Menü6f, &Menü6g, &Menü6h});
  Menü8.setItems({&Menü8a, &Menü8b, &Menü8c});
}

std::vector<Menu*> MDIForm1::menus() {
  return {&Menü1, &Menü2, &Menü3, &Menü4, &Menü7, &Menü5, &Menü6, &Menü8};
}

MenuItem* MDIForm1::item(std::string_view name) const {
  return dynamic_cast<MenuItem*>(control(name));
}

void MDIForm1::bindCommands() {
  for (const auto& window : windowTable())
    for (auto* way : {item(window.item), item(window.context)})
      if (way != nullptr) way->Click = [this, &window] { command(window, kMenuRefusal); };
  Menü8a.Click = [this] { showRecordDive<Form3>(); };
  Menü8b.Click = [this] { showRecordDive<Form4>(); };
  Menü8c.Click = [this] { showRecordDive<Form5>(); };
  Menü7b.Click = [this] {
    if (cascade) cascade();
  };
  Menü5a.Click = [this] { desktop().openDocument(app_.besideExecutable("nautrel.rtf")); };
  Menü1e.Click = [this] { desktop().end(); };
  Menü1f.Click = [this] {
    CommonDialog1.setFlags(64);
    resumeNext([&] { CommonDialog1.ShowPrinter(); });
  };
}

void MDIForm1::bindToolbar() {
  Toolbar1.ButtonClick = [this](const std::string& key) {
    Toolbar1.Refresh();
    for (const auto& window : windowTable())
      if (window.key == key) return command(window, kToolbarRefusal);
  };
}

void MDIForm1::Form_Load() {
  auto& shared = app_.Modul1();
  shared.NummernLesen();
  {
    auto rows = app_.openLogbook({"Nr"});
    shared.LogbuchPruefen();
    if (!shared.LogbuchLeer && !isSorted(rows.RecordCount()))
      MsgBox(
          "Attention! The dives are not sorted correctly. Please select 'Sort logbook'. "
          "Otherwise there could be program errors.");
  }
  shared.LogbuchPruefen();
  if (shared.LogbuchLeer) shared.MenuesSperren();
  shared.StatusAktualisieren();
  applySize();
  applyBackground();
  Show();
  shared.Startfenster();
}

// What is no number must not keep the diver from "Sort logbook", which mends it.
bool MDIForm1::isSorted(int dives) const {
  const auto& shared = app_.Modul1();
  const auto first = tryNumber(shared.ErsteNummer.joined(locale()));
  const auto last = tryNumber(shared.LetzteNummer.joined(locale()));
  return first && last && *last - *first + 1 == dives;
}

bool MDIForm1::hasFreeSize() const {
  const auto start = [this](const char* key) { return desktop().GetSetting("Start", key); };
  const auto isSize = [&](const char* key) { return start(key) != kNoSize; };
  return start("Fenster") == "Ben" && isSize("Breite") && isSize("Höhe") && isSize("Links") &&
         isSize("Oben");
}

void MDIForm1::applySize() {
  if (!hasFreeSize()) return;
  const auto start = [this](const char* key) { return desktop().GetSetting("Start", key); };
  const auto twips = [&](const char* key) {
    return static_cast<double>(toSingle(number(start(key))));
  };
  setWindowState(WindowState::Normal);
  setWidth(twips("Breite"));
  setHeight(twips("Höhe"));
  setLeft(twips("Links"));
  setTop(twips("Oben"));
}

void MDIForm1::applyBackground() {
  try {
    setBackColor(toInt32(number(desktop().GetSetting("Colors", "Main"))));
  } catch (const RunTimeError&) {
    return setBackColor(kStandardColor);
  }
  resumeNext([&] { setPicture(desktop().LoadPicture(desktop().GetSetting("Start", "Grafic"))); });
}

void MDIForm1::Form_Resize() {
  auto& shared = app_.Modul1();
  shared.StatusAktualisieren();
  if (shared.EinstellungenOffen && app_.window<Form18>().Option2.on())
    app_.window<Form18>().showFrameSize();
}

void MDIForm1::userSettled() {
  program().handle([this] {
    const int number = takeStartWindow();
    if (auto* child = number == 0 ? nullptr : app_.ifLoaded(number)) placeInFrame(*child, *this);
  });
}

void MDIForm1::MDIForm_MouseUp(int button) {
  if (button == 2) program().handle([this] { desktop().popupMenu(Menü6); });
}

void MDIForm1::setBackColor(long color) {
  backColor_ = color;
  notifyLook();
}

void MDIForm1::setPicture(nautrel::Picture picture) {
  picture_ = std::move(picture);
  notifyLook();
}

void MDIForm1::Startform(int number) {
  for (const int other : exclusiveWindows())
    if (other != number) app_.unload(other);
}

void MDIForm1::command(const WindowEntry& window, const char* refusal) {
  if (window.number == Windows::InsertDive) {
    auto rows = app_.openLogbook({"Nr"});
    if (!trueOrFails([&] { return rows.RecordCount() < kMostDives; })) {
      resumeNext([&] { MsgBox(refusal); });
      return app_.unload(window.number);
    }
  }
  if (window.exclusive) resumeNext([&] { Startform(window.number); });
  resumeNext([&] { app_.show(window.number); });
}

// Not by a Startform: the statistic stays open, and makes room.
template <class RecordForm>
void MDIForm1::showRecordDive() {
  for (const int other : {Form3::kNumber, Form4::kNumber, Form5::kNumber})
    if (other != RecordForm::kNumber) resumeNext([&] { app_.unload(other); });
  resumeNext([&] { app_.window<Form6>().setLeft(0); });
  resumeNext([&] { app_.window<Form6>().setTop(0); });
  resumeNext([&] { app_.window<RecordForm>().Show(); });
  double target = 0;
  resumeNext([&] {
    target = number(app_.window<Form6>().recordButton(app_.Modul1().StatistikKnopf).caption());
  });
  double distance = 0;
  resumeNext([&] { distance = target - app_.window<RecordForm>().currentNumber(); });
  std::optional<ListFollows> follows;
  if (RecordForm::kNumber == Form3::kNumber) follows.emplace(app_.Modul1());
  resumeNext([&] { app_.window<RecordForm>().Data1.Recordset().Move(toInt32(distance)); });
}

void MDIForm1::gateCommands(bool enabled) {
  for (const auto& window : windowTable()) {
    if (!window.needsDives) continue;
    for (auto* way : {item(window.item), item(window.context)})
      if (way != nullptr) way->setEnabled(enabled);
    Toolbar1.setButtonEnabled(window.key, enabled);
  }
}

}  // namespace nautrel
