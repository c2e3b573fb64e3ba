#include "shell/MDIForm1.h"

#include <array>
#include <optional>
#include <utility>

#include "dives/Form3.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "evaluation/Form6.h"
#include "platform/errors.h"
#include "shell/Form18.h"
#include "shell/Modul1.h"
#include "shell/Nautrel.h"
#include "store/contract.h"

namespace nautrel {
namespace {

constexpr int kMostDives = 9999;
constexpr const char* kMenuRefusal = "Die Datenbank kann nicht mehr als 9999 Tauchgänge aufnehmen";
constexpr const char* kToolbarRefusal =
    "You could not insert more than 9999 dives in the database.";
constexpr std::array<int, 15> kExclusive{2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 20};
constexpr std::array<int, 12> kGatedButtons{3, 4, 6, 9, 11, 12, 14, 15, 16, 18, 19, 20};

std::vector<ToolbarButton> toolbarButtons() {
  return {{},
          {"einfügen", "Insert dive"},
          {"ändern", "Edit dive"},
          {"löschen", "Delete dive"},
          {},
          {"drucken", "Print dive-list"},
          {"benutzer", "Personal information"},
          {"ausrüstung", "Dive equipment"},
          {"nummerieren", "Sort dives"},
          {},
          {"logbuch", "View logbook"},
          {"tabelle", "Logbook table"},
          {},
          {"suchbegriff", "Search a word"},
          {"numerische", "Search a number"},
          {"ausführlich", "Full search"},
          {},
          {"statistik", "Statistic"},
          {"jahre", "Graph years"},
          {"monate", "Graph month"},
          {},
          {"einheiten", "Unit calculations"},
          {"volumen", "Calculations"}};
}

}  // namespace

MDIForm1::MDIForm1(Nautrel& app)
    : Form(app, "MDIForm1",
           {.caption = "Nautrel 2.0", .width = 15360, .height = 11520, .child = false}),
      Toolbar1(*this, "Toolbar1", toolbarButtons()),
      StatusBar1(*this, "StatusBar1",
                 {{{"Caps Lock", "Zeigt an, ob \"nur Großschreibung\" gewählt ist"},
                   {"Insert", "Zeigt an, ob die Einfügen-Taste gedrückt ist"},
                   {},
                   {},
                   {}}}),
      CommonDialog1(app.desktop(), {}),
      app_(app) {
  setWindowState(WindowState::Maximized);
  Picture1.holds({&ProgressBar1}).setVisible(false);
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

void MDIForm1::bindCommands() {
  const std::pair<MenuItem*, int> exclusive[] = {
      {&Menü1a, 9},  {&Menü1b, 7},  {&Menü1c, 15}, {&Menü1d, 8},  {&Menü2b, 4},  {&Menü2c, 5},
      {&Menü3a, 3},  {&Menü3d, 13}, {&Menü3b, 12}, {&Menü3c, 14}, {&Menü3e, 20}, {&Menü4a, 6},
      {&Menü4b, 10}, {&Menü4c, 11}, {&Menü6b, 4},  {&Menü6c, 3},  {&Menü6d, 12}, {&Menü6e, 14},
      {&Menü6f, 6},  {&Menü6g, 10}, {&Menü6h, 11}};
  for (const auto& [item, number] : exclusive)
    item->Click = [this, number = number] { command(number); };

  const std::pair<MenuItem*, int> beside[] = {
      {&Menü1g, 18}, {&Menü7a, 21}, {&Menü7c, 22}, {&Menü5b, 16}};
  for (const auto& [item, number] : beside)
    item->Click = [this, number = number] { showBeside(number); };

  Menü2a.Click = Menü6a.Click = [this] { insertDive(kMenuRefusal); };
  Menü8a.Click = [this] { showRecordDive(3); };
  Menü8b.Click = [this] { showRecordDive(4); };
  Menü8c.Click = [this] { showRecordDive(5); };
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
    static const std::pair<const char*, int> exclusive[] = {
        {"ändern", 4},       {"löschen", 5},     {"drucken", 9},      {"benutzer", 7},
        {"ausrüstung", 15},  {"nummerieren", 8}, {"logbuch", 3},      {"tabelle", 13},
        {"suchbegriff", 12}, {"numerische", 14}, {"ausführlich", 20}, {"statistik", 6},
        {"jahre", 10},       {"monate", 11}};
    Toolbar1.Refresh();
    if (key == "einfügen") return insertDive(kToolbarRefusal);
    if (key == "einheiten") return showBeside(21);
    if (key == "volumen") return showBeside(22);
    for (const auto& [known, number] : exclusive)
      if (key == known) return command(number);
  };
}

void MDIForm1::Form_Load() {
  auto& shared = app_.Modul1();
  shared.NummernLesen();
  {
    auto rows = app_.workspace().OpenDatabase(app_.databasePath()).OpenRecordset("Logbuch", {"Nr"});
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
  if (shared.EinstellungenOffen && app_.Form18().Option2.on()) app_.Form18().showFrameSize();
}

void MDIForm1::userSettled() {
  program().handle([this] {
    const int number = std::exchange(startWindow_, 0);
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

void MDIForm1::setMousePointer(int pointer) {
  mousePointer_ = pointer;
  notifyLook();
}

void MDIForm1::startform(int kept) {
  for (const int number : kExclusive)
    if (number != kept) app_.unload(number);
}

void MDIForm1::Startform2() {
  startform(2);
}
void MDIForm1::Startform3() {
  startform(3);
}
void MDIForm1::Startform4() {
  startform(4);
}
void MDIForm1::Startform5() {
  startform(5);
}
void MDIForm1::Startform6() {
  startform(6);
}
void MDIForm1::Startform7() {
  startform(7);
}
void MDIForm1::Startform8() {
  startform(8);
}
void MDIForm1::Startform9() {
  startform(9);
}
void MDIForm1::Startform10() {
  startform(10);
}
void MDIForm1::Startform11() {
  startform(11);
}
void MDIForm1::Startform12() {
  startform(12);
}
void MDIForm1::Startform13() {
  startform(13);
}
void MDIForm1::Startform14() {
  startform(14);
}
void MDIForm1::Startform15() {
  startform(15);
}
void MDIForm1::Startform20() {
  startform(20);
}

void MDIForm1::command(int number) {
  resumeNext([&] { startform(number); });
  showBeside(number);
}

void MDIForm1::showBeside(int number) {
  resumeNext([&] { app_.show(number); });
}

void MDIForm1::insertDive(const char* refusal) {
  auto rows = app_.workspace().OpenDatabase(app_.databasePath()).OpenRecordset("Logbuch", {"Nr"});
  if (trueOrFails([&] { return rows.RecordCount() < kMostDives; })) return command(2);
  resumeNext([&] { MsgBox(refusal); });
  app_.unload(2);
}

// Not by a Startform<n>: the statistic stays open, and makes room.
void MDIForm1::showRecordDive(int window) {
  for (const int other : {3, 4, 5})
    if (other != window) resumeNext([&] { app_.unload(other); });
  resumeNext([&] { app_.Form6().setLeft(0); });
  resumeNext([&] { app_.Form6().setTop(0); });
  resumeNext([&] { app_.show(window); });
  double target = 0;
  resumeNext(
      [&] { target = number(app_.Form6().recordButton(app_.Modul1().StatistikKnopf).caption()); });
  double distance = 0;
  resumeNext([&] { distance = target - currentNumberOf(window); });
  std::optional<ListFollows> follows;
  if (window == 3) follows.emplace(app_.Modul1());
  resumeNext([&] { recordsOf(window).Move(toInt32(distance)); });
}

Recordset& MDIForm1::recordsOf(int window) {
  if (window == 3) return app_.Form3().Data1.Recordset();
  if (window == 4) return app_.Form4().Data1.Recordset();
  return app_.Form5().Data1.Recordset();
}

double MDIForm1::currentNumberOf(int window) {
  if (window == 3) return app_.Form3().currentNumber();
  if (window == 4) return app_.Form4().currentNumber();
  return app_.Form5().currentNumber();
}

void MDIForm1::gateCommands(bool enabled) {
  for (auto* item :
       {&Menü1a, &Menü1d, &Menü2b, &Menü2c, &Menü3a, &Menü3b, &Menü3c, &Menü3d, &Menü3e, &Menü4a,
        &Menü4b, &Menü4c, &Menü6b, &Menü6c, &Menü6d, &Menü6e, &Menü6f, &Menü6g, &Menü6h})
    item->setEnabled(enabled);
  for (const int index : kGatedButtons) Toolbar1.setButtonEnabled(index, enabled);
}

Hourglass::Hourglass(MDIForm1& frame) : frame_(frame) {
  frame_.setMousePointer(11);
}
Hourglass::~Hourglass() {
  frame_.setMousePointer(0);
}

void placeInFrame(Form& child, const MDIForm1& frame) {
  child.setLeft(frame.Width() / 2 - child.Width() / 2 - kLeftOfMiddle);
  child.setTop(frame.Height() / 2 - child.Height() / 2 - kAboveMiddle);
}

}  // namespace nautrel
