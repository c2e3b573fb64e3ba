// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <random>
#include <string>
#include <vector>

#include "support/logbook.h"

namespace nautrel {

class DiveEntryForm;

class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  int below(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }
  bool oneIn(int count) { return below(count) == 0; }

 private:
  std::mt19937 engine_;
};

/// What must be in the tables: text as stored, flags as "1" and "0".
struct Stored {
  using Row = std::vector<std::string>;
  std::vector<Row> dives;
  std::vector<Row> items;
  Row card;
  friend bool operator==(const Stored&, const Stored&) = default;
};
/// Read by another program.
Stored storedIn(const std::string& logbook);

/// The first line in which they differ.
std::string difference(const Stored& found, const Stored& wanted);

/// Every state that the file goes through, row by row, and where each action came to its end.
struct Story {
  std::vector<Stored> states;
  std::vector<std::size_t> ends;

  /// Whether the file may be so, with so many actions finished for certain and one more begun.
  bool allows(const Stored& found, int finished) const;
};

/// Someone who keeps a logbook: enters, changes, deletes and sorts dives, card and equipment by
/// chance, and knows what must be stored then. Goes on until the program ends.
class Diver {
 public:
  Diver(unsigned seed, Stored stored);
  /// Does something in the program, with what it asks answered Yes. What the windows show on the
  /// way is looked at; if it is another dive than the one meant, nothing is done to it.
  void act(Nautrel& app, ScriptedDesktop& desktop);
  const Story& story() const { return story_; }
  /// What the windows showed wrongly in the last action.
  const std::string& complaint() const { return complaint_; }

 private:
  void insert();
  void edit();
  void removeOne();
  void removeRange();
  void sort();
  void fillCard();
  void changeEquipment();
  void look();

  template <class Window>
  Window* open(MenuItem MDIForm1::*command);
  void inTurn(std::initializer_list<std::function<void()>> steps);
  void closeAll();
  bool ended() const;
  void complain(const char* what, const TextBox& box);
  int someRow(const std::vector<Stored::Row>& rows);
  void store() { story_.states.push_back(now_); }
  void renumber(int first);
  void enter(DiveEntryForm& form, Stored::Row& row, int outOf);
  template <class Window>
  bool goTo(Window& form, int row);
  std::string word(int most);
  std::string entryFor(int column);

  Dice dice_;
  Stored now_;
  Story story_;
  std::string complaint_;
  Nautrel* app_ = nullptr;
  ScriptedDesktop* desktop_ = nullptr;
};

}  // namespace nautrel
