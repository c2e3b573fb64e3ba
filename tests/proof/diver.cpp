// SPDX-License-Identifier: GPL-2.0-or-later
#include "proof/diver.h"

#include <sqlite3.h>

#include <algorithm>

#include "diver/Form15.h"
#include "diver/Form7.h"
#include "dives/Form2.h"
#include "dives/Form3.h"
#include "dives/Form4.h"
#include "dives/Form5.h"
#include "dives/Form8.h"
#include "dives/dive_columns.h"
#include "platform/text.h"

namespace nautrel {
namespace {

constexpr const char* kNull = "(Null)";

std::vector<Stored::Row> rowsOf(sqlite3* file, const std::string& table) {
  std::vector<Stored::Row> rows;
  sqlite3_stmt* statement = nullptr;
  EXPECT_EQ(sqlite3_prepare_v2(file, ("SELECT * FROM " + table + " ORDER BY rowid").c_str(), -1,
                               &statement, nullptr),
            SQLITE_OK)
      << sqlite3_errmsg(file);
  while (sqlite3_step(statement) == SQLITE_ROW) {
    auto& row = rows.emplace_back();
    for (int column = 0; column < sqlite3_column_count(statement); ++column) {
      const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
      row.emplace_back(text == nullptr ? kNull : text);
    }
  }
  sqlite3_finalize(statement);
  return rows;
}

bool isFlag(int column) {
  return kLogbuchColumns[column].kind == Kind::Flag;
}

std::size_t at(int place) {
  return static_cast<std::size_t>(place);
}

std::string shown(const std::string& cell) {
  return cell == kNull ? "" : cell;
}

}  // namespace

Stored storedIn(const std::string& logbook) {
  Stored stored;
  sqlite3* file = nullptr;
  EXPECT_EQ(sqlite3_open(logbook.c_str(), &file), SQLITE_OK);
  std::string sound;
  sqlite3_exec(
      file, "PRAGMA integrity_check",
      [](void* told, int, char** values, char**) {
        *static_cast<std::string*>(told) += values[0];
        return 0;
      },
      &sound, nullptr);
  EXPECT_EQ(sound, "ok");
  stored.dives = rowsOf(file, "Logbuch");
  stored.items = rowsOf(file, "Ausrüstung");
  const auto cards = rowsOf(file, "Benutzer");
  EXPECT_EQ(cards.size(), 1U);
  if (!cards.empty()) stored.card = cards.front();
  sqlite3_close(file);
  return stored;
}

std::string difference(const Stored& found, const Stored& wanted) {
  const auto lines = [](const Stored& stored) {
    auto rows = stored.dives;
    rows.insert(rows.end(), stored.items.begin(), stored.items.end());
    rows.push_back(stored.card);
    return rows;
  };
  const auto one = lines(found);
  const auto other = lines(wanted);
  const auto [here, there] = std::mismatch(one.begin(), one.end(), other.begin(), other.end());
  return (here == one.end() ? "nothing" : testing::PrintToString(*here)) + "\nfor " +
         (there == other.end() ? "nothing" : testing::PrintToString(*there));
}

bool Story::allows(const Stored& found, int finished) const {
  const auto from = finished == 0 ? 0 : ends[static_cast<std::size_t>(finished) - 1];
  const auto next = static_cast<std::size_t>(finished);
  const auto to = next < ends.size() ? ends[next] : states.size() - 1;
  return std::find(states.begin() + static_cast<std::ptrdiff_t>(from),
                   states.begin() + static_cast<std::ptrdiff_t>(to) + 1,
                   found) != states.begin() + static_cast<std::ptrdiff_t>(to) + 1;
}

Diver::Diver(unsigned seed, Stored stored) : dice_(seed), now_(std::move(stored)) {
  store();
}

int Diver::someRow(const std::vector<Stored::Row>& rows) {
  return dice_.below(static_cast<int>(rows.size()));
}

bool Diver::ended() const {
  return desktop_->ended();
}

void Diver::act(Nautrel& app, ScriptedDesktop& desktop) {
  app_ = &app;
  desktop_ = &desktop;
  complaint_.clear();
  const int kind = dice_.below(20);
  if (now_.dives.empty() || kind < 6)
    insert();
  else if (kind < 10)
    edit();
  else if (kind < 12)
    removeOne();
  else if (kind < 13)
    removeRange();
  else if (kind < 14)
    sort();
  else if (kind < 15)
    fillCard();
  else if (kind < 18)
    changeEquipment();
  else
    look();
  closeAll();
  story_.ends.push_back(story_.states.size() - 1);
  desktop.messages();
}

std::string Diver::word(int most) {
  static const char* const kWords[] = {"Blue Hole", "Süd", "O'Neil", "\"Wall\"", "5%", "_", "北",
                                       "a;b,c",     "ß",   " ",      "-1",       "x",  "\\"};
  std::string text;
  for (int count = dice_.below(3); count >= 0; --count) text += kWords[dice_.below(13)];
  return text.substr(0, byteOfCharacter(text, static_cast<std::size_t>(most)));
}

std::string Diver::entryFor(int column) {
  const auto between = [this](int least, int most) {
    return std::to_string(least + dice_.below(most - least + 1));
  };
  switch (column) {
    case Feld::Tag:
      return between(10, 28);
    case Feld::Monat:
      return between(10, 12);
    case Feld::Jahr:
      return between(1960, 1999);
    case Feld::Zeit:
      return between(1, 200);
    case Feld::Tiefe:
      return between(1, 99) + (dice_.oneIn(3) ? ".5" : "");
    case Feld::Bars:
    case Feld::Bare:
      return between(0, 3500);
    case Feld::Liter:
    case Feld::Blei:
      return between(0, 120);
    case Feld::Höhe:
      return word(6);
    default:
      return word(20);
  }
}

/// Fills the boxes that a dive needs, and of the others one out of so many.
void Diver::enter(DiveEntryForm& form, Stored::Row& row, int outOf) {
  const auto chosen = [&](const DiveColumn& column) {
    const bool lacks = column.required != nullptr && shown(row[column.ordinal]).empty();
    const bool takesKeys = column.ordinal != Feld::Nr && column.ordinal != Feld::Grafik;
    if (ended() || !takesKeys || !(lacks || dice_.oneIn(outOf))) return false;
    choose(form.SSTab1, std::min<int>(column.place, DiveColumn::SeveralInfo));
    return true;
  };
  eachColumn(
      form,
      [&](const DiveColumn& column, TextBox& box) {
        if (!chosen(column)) return;
        row[column.ordinal] = entryFor(column.ordinal);
        clear(box);
        paste(box, row[column.ordinal]);
      },
      [&](const DiveColumn& column, OptionButton& option) {
        if (!chosen(column)) return;
        for (const auto& other : diveColumns())
          if (other.place == column.place && other.place >= DiveColumn::Water &&
              isFlag(other.ordinal))
            row[other.ordinal] = "0";
        row[column.ordinal] = "1";
        click(option);
      },
      [&](const DiveColumn& column, CheckBox& box) {
        if (!chosen(column)) return;
        auto& flag = row[column.ordinal];
        flag = flag == "1" ? "0" : "1";
        click(box);
      });
}

/// The window that the command brings; null where the program ended over it.
template <class Window>
Window* Diver::open(MenuItem MDIForm1::*command) {
  if (!ended()) click(app_->MDIForm1().*command);
  return ended() ? nullptr : static_cast<Window*>(app_->ifLoaded(Window::kNumber));
}

/// Does one thing after the other, as long as the program goes on.
void Diver::inTurn(std::initializer_list<std::function<void()>> steps) {
  for (const auto& step : steps)
    if (!ended()) step();
}

void Diver::insert() {
  Stored::Row row(std::size(kLogbuchColumns));
  for (int column = 0; column < static_cast<int>(row.size()); ++column)
    if (isFlag(column)) row[at(column)] = "0";
  const int number = now_.dives.empty() ? 1 : std::stoi(now_.dives.back()[Feld::Nr]) + 1;
  row[Feld::Nr] = std::to_string(number);
  const bool complete = !dice_.oneIn(8);
  if (auto* form = open<Form2>(&MDIForm1::Menü2a)) {
    if (form->Text1.text() != row[Feld::Nr]) return complain("Insert counts", form->Text1);
    enter(*form, row, 3);
    inTurn({[&] {
              if (complete) return;
              choose(form->SSTab1, DiveColumn::General);
              clear(form->Text9);
            },
            [&] { click(form->Command2); }});
  }
  if (!complete) return;
  now_.dives.push_back(row);
  store();
}

void Diver::complain(const char* what, const TextBox& box) {
  complaint_ = std::string(what) + " " + box.text();
}

/// Walks to the row and says whether the window shows it.
template <class Window>
bool Diver::goTo(Window& form, int row) {
  for (int step = 0; step < row && !ended(); ++step) press(form.Data1, Navigator::Arrow::Next);
  if (ended()) return false;
  const auto& dive = now_.dives[at(row)];
  for (const auto& [box, column] : {std::pair(&form.Text1, Feld::Nr), {&form.Text4, Feld::Platz}})
    if (box->text() != shown(dive[column])) complain("the wrong dive:", *box);
  return complaint_.empty();
}

void Diver::edit() {
  const int place = someRow(now_.dives);
  auto row = now_.dives[at(place)];
  auto* form = open<Form4>(&MDIForm1::Menü2b);
  if (form != nullptr && goTo(*form, place)) {
    enter(*form, row, 5);
    inTurn({[&] { click(dice_.oneIn(2) ? form->Command1 : form->Command2); }});
    for (auto& cell : row) cell = shown(cell);
    now_.dives[at(place)] = row;
    store();
  }
}

void Diver::closeAll() {
  while (!ended() && app_->activeForm() != nullptr) close(*app_->activeForm());
}

void Diver::renumber(int first) {
  for (auto& dive : now_.dives) {
    dive[Feld::Nr] = std::to_string(first++);
    store();
  }
}

void Diver::removeOne() {
  const int place = someRow(now_.dives);
  auto* form = open<Form5>(&MDIForm1::Menü2c);
  if (form == nullptr || !goTo(*form, place)) return;
  inTurn({[&] { click(form->Command1); }});
  now_.dives.erase(now_.dives.begin() + place);
  store();
  renumber(1);
}

void Diver::removeRange() {
  const int from = someRow(now_.dives);
  const int to = std::min(from + dice_.below(4), static_cast<int>(now_.dives.size()) - 1);
  const auto number = [this](int row) { return now_.dives[at(row)][Feld::Nr]; };
  auto* form = open<Form5>(&MDIForm1::Menü2c);
  if (form == nullptr) return;
  inTurn({[&] { choose(form->SSTab1, 1); }, [&] { paste(form->Text6, number(from)); },
          [&] { paste(form->Text7, number(to)); }, [&] { click(form->Command4); }});
  // The lower end of a range is held against the first number as text.
  if (std::min(number(from), number(to)) < number(0)) return;
  for (int row = from; row <= to; ++row) {
    now_.dives.erase(now_.dives.begin() + from);
    store();
  }
  renumber(1);
}

void Diver::sort() {
  const int first = 1 + dice_.below(50);
  auto* form = open<Form8>(&MDIForm1::Menü1d);
  if (form == nullptr) return;
  inTurn({[&] { clear(form->Text1); }, [&] { paste(form->Text1, std::to_string(first)); },
          [&] { click(form->Command1); }});
  renumber(first);
}

void Diver::fillCard() {
  auto* form = open<Form7>(&MDIForm1::Menü1b);
  if (form == nullptr) return;
  for (auto& cell : now_.card) cell = shown(cell);
  for (const auto& [box, column] :
       {std::pair(&form->Text1, 0), {&form->Text3, 2}, {&form->Text15, 15}}) {
    now_.card[at(column)] = word(20);
    inTurn({[&, box = box] { clear(*box); },
            [&, box = box, column = column] { paste(*box, now_.card[at(column)]); }});
  }
  inTurn({[&] { click(form->Command1); }});
  store();
}

void Diver::changeEquipment() {
  enum { New, Change, Remove };
  const int kind = now_.items.empty() ? New : dice_.below(3);
  const int place = now_.items.empty() ? 0 : someRow(now_.items);
  const auto name = word(20);
  auto* form = open<Form15>(&MDIForm1::Menü1c);
  if (form == nullptr) return;
  if (kind == New) {
    now_.items.emplace_back(9)[7] = std::to_string(now_.items.size() + 1);
    click(form->Command1);
  } else {
    for (int step = 0; step < place && !ended(); ++step) press(form->Data1, Navigator::Arrow::Next);
    if (ended()) return;
    if (form->Text1.text() != now_.items[at(place)][0])
      return complain("the wrong item:", form->Text1);
  }
  if (kind != Remove) inTurn({[&] { clear(form->Text1); }, [&] { paste(form->Text1, name); }});
  inTurn({[&] {
    click(kind == New ? form->Command3 : kind == Change ? form->Command4 : form->Command2);
  }});
  if (kind == Remove)
    now_.items.erase(now_.items.begin() + place);
  else
    (kind == New ? now_.items.back() : now_.items[at(place)])[0] = name;
  store();
}

void Diver::look() {
  const int place = someRow(now_.dives);
  auto* form = open<Form3>(&MDIForm1::Menü3a);
  if (form == nullptr || !goTo(*form, place)) return;
  const auto& row = now_.dives[at(place)];
  eachColumn(*form, [&](const DiveColumn& column, TextBox& box) {
    if (&box != &form->Text5 && box.text() != shown(row[column.ordinal]))
      complain("View shows", box);
  });
}

}  // namespace nautrel
