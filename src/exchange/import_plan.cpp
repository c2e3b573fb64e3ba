// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/import_plan.h"

#include <algorithm>
#include <tuple>

#include "exchange/dates.h"
#include "exchange/dive_rows.h"
#include "exchange/duplicates.h"
#include "exchange/plain_text.h"
#include "exchange/standard_row.h"

namespace nautrel::exchange {
namespace {

constexpr int kMostDives = 9999;

/// The stored dives by the columns that tell a number and a duplicate.
std::vector<DiveRecord> storedDives(Database& database) {
  const auto columns = {Feld::Nr, Feld::Tag, Feld::Monat, Feld::Jahr, Feld::Zeit, Feld::Tiefe};
  Columns names;
  for (const int column : columns) names.emplace_back(diveColumn(column).name);
  std::vector<DiveRecord> all;
  for (auto dives = database.OpenRecordset(Tabelle::Logbuch, names); !dives.Eof();
       dives.MoveNext()) {
    auto& dive = all.emplace_back();
    for (const int column : columns)
      if (const auto value = dives.Fields(column); !value.isNull())
        dive.texts[column] = value.text({});
  }
  return all;
}

std::vector<TextRow> storedRows(Database& database, std::string_view table) {
  std::vector<TextRow> all;
  for (auto rows = database.OpenRecordset(table); !rows.Eof(); rows.MoveNext())
    all.push_back(readRow(rows));
  return all;
}

/// The place of each dive among the others: by date, clock, the file's number, and the file's
/// order, which some programs turn round. A dive without a date stays behind the one before it.
struct Order {
  Date date;
  int minute;
  int number;
  int place;

  auto key() const { return std::tuple(date, minute, number, place); }
};

std::vector<Order> ordersOf(const std::vector<SourceDive>& dives) {
  std::vector<Order> orders;
  Date last{};
  for (const auto& dive : dives) {
    last = nearestDate(dive.record).value_or(last);
    orders.push_back({last, dive.minuteOfDay.value_or(-1), dive.number.value_or(-1),
                      static_cast<int>(orders.size())});
  }
  if (!orders.empty() && orders.front().date > orders.back().date)
    for (auto& order : orders) order.place = -order.place;
  return orders;
}

std::vector<SourceDive> sorted(std::vector<SourceDive> dives) {
  const auto orders = ordersOf(dives);
  std::vector<std::size_t> places(dives.size());
  for (std::size_t place = 0; place < places.size(); ++place) places[place] = place;
  std::sort(places.begin(), places.end(), [&](std::size_t one, std::size_t other) {
    return orders[one].key() < orders[other].key();
  });
  std::vector<SourceDive> result;
  result.reserve(dives.size());
  for (const auto place : places) result.push_back(std::move(dives[place]));
  return result;
}

/// Leads out of its folder, or to another computer.
bool leadsElsewhere(std::string_view path) {
  return path.find("..") != std::string_view::npos || path.starts_with("\\\\") ||
         path.starts_with("//");
}

std::string whereOf(const SourceDive& dive) {
  return "line " + std::to_string(dive.line);
}

void notePictures(const std::vector<PlannedDive>& dives, std::vector<std::string>& notes) {
  int count = 0;
  const SourceDive* first = nullptr;
  for (const auto& dive : dives) {
    if (!leadsElsewhere(dive.source.record.text(Feld::Grafik))) continue;
    if (count++ == 0) first = &dive.source;
  }
  if (count > 0)
    notes.push_back("Pictures whose path leads out of its folder or to another computer: " +
                    std::to_string(count) + ", the first in " + whereOf(*first) + " ('" +
                    shown(first->record.text(Feld::Grafik)) + "').");
}

/// The same product, maker and serial number.
bool isSamePiece(const TextRow& one, const TextRow& other) {
  const auto text = [](const TextRow& row, int column) { return row[column].value_or(""); };
  constexpr int kTelling[] = {Stück::Gegenstand, Stück::Fabrikant, Stück::Seriennummer};
  return std::all_of(std::begin(kTelling), std::end(kTelling),
                     [&](int column) { return text(one, column) == text(other, column); });
}

}  // namespace

ImportPlan ImportPlan::make(const ImportSource& source, const Answers& answers,
                            Workspace& workspace, const std::string& logbook, const Locale& locale,
                            const ImportOptions& options) {
  auto dives = source.dives(answers, locale);
  auto database = workspace.OpenDatabase(logbook);
  const auto stored = storedDives(database);
  const bool ours = !dives.empty() && std::all_of(dives.begin(), dives.end(),
                                                  [](const auto& dive) { return dive.ours; });
  ImportPlan plan;
  plan.notes_ = source.notes();
  plan.asItStands_ = ours && stored.empty();
  plan.planDives(plan.asItStands_ ? std::move(dives) : sorted(std::move(dives)), stored, locale);
  if (options.card) plan.planCard(source.card(), storedRows(database, Tabelle::Benutzer), ours);
  if (options.equipment)
    plan.planEquipment(source.equipment(), storedRows(database, Tabelle::Ausrüstung), ours);
  if (!ours && !plan.dives_.empty())
    plan.notes_.emplace_back(
        "The logbook has no place for clock times, positions and profiles; they stay in the file.");
  return plan;
}

void ImportPlan::planDives(std::vector<SourceDive> dives, const std::vector<DiveRecord>& stored,
                           const Locale& locale) {
  DuplicateFinder duplicates(locale);
  for (const auto& dive : stored) duplicates.addStored(dive);
  storedDives_ = static_cast<int>(stored.size());
  if (!stored.empty()) lastNumber_ = stored.back().texts[Feld::Nr];
  firstNew_ = 1 + readWhole(lastNumber_.value_or("")).value_or(storedDives_);
  for (auto& dive : dives) {
    auto& planned = dives_.emplace_back(PlannedDive{.source = std::move(dive)});
    if (planned.source.leftOutBecause.empty() && !asItStands_)
      planned.duplicateOf = duplicates.match(planned.source.record);
  }
  notePictures(dives_, notes_);
  settleFates();
}

void ImportPlan::settleFates() {
  int next = firstNew_;
  for (auto& dive : dives_) {
    dive.fate = Fate::Taken;
    dive.why.clear();
    if (!dive.source.leftOutBecause.empty()) {
      dive.fate = Fate::LeftOut;
      dive.why = dive.source.leftOutBecause;
    } else if (dive.unwanted) {
      dive.fate = Fate::LeftOut;
      dive.why = "it is not wanted";
    } else if (dive.duplicateOf && !dive.insisted) {
      dive.fate = Fate::Duplicate;
      dive.why = "it stands in the logbook as dive " + *dive.duplicateOf;
    }
    if (asItStands_) continue;
    dive.source.record.texts[Feld::Nr] =
        dive.fate == Fate::Taken ? std::to_string(next++) : std::string();
  }
}

void ImportPlan::insist(std::size_t place, bool yes) {
  dives_.at(place).insisted = yes;
  settleFates();
}

void ImportPlan::leaveOut(std::size_t place, bool yes) {
  dives_.at(place).unwanted = yes;
  settleFates();
}

void ImportPlan::leaveAllOut(bool yes) {
  for (auto& dive : dives_) dive.unwanted = yes;
  settleFates();
}

ImportPlan::Counts ImportPlan::counts() const {
  Counts counts;
  for (const auto& dive : dives_) {
    counts.taken += dive.fate == Fate::Taken;
    counts.changed += dive.fate == Fate::Taken && !dive.source.changes.empty();
    counts.duplicates += dive.fate == Fate::Duplicate;
    counts.leftOut += dive.fate == Fate::LeftOut;
  }
  return counts;
}

std::string ImportPlan::refusal() const {
  const auto count = counts();
  if (storedDives_ + count.taken > kMostDives)
    return "The logbook would hold " + std::to_string(storedDives_ + count.taken) +
           " dives; more than 9999 are not possible.";
  if (!asItStands_ && count.taken > 0 && firstNew_ - 1 + count.taken > kMostDives)
    return "The last dive would have the number " + std::to_string(firstNew_ - 1 + count.taken) +
           "; more than 9999 is not possible. Please select 'Sort logbook' and enter a lower start "
           "number.";
  const auto& first = dives_.empty() ? PlannedDive{} : dives_.front();
  if (count.leftOut > 0 && count.leftOut == static_cast<int>(dives_.size()) && !takesCard() &&
      takesEquipment() == 0)
    return "None of the dives can be taken: the one of " + whereOf(first.source) +
           " is left out since " + first.why + ".";
  return {};
}

void ImportPlan::planCard(TextRow card, const std::vector<TextRow>& stored, bool ours) {
  if (isBlank(card)) {
    notes_.emplace_back("The file holds no diver's card.");
    return;
  }
  if (!stored.empty() && !isBlank(stored.front())) {
    notes_.emplace_back("The diver's card is filled and stays as it is.");
    return;
  }
  if (!ours)
    for (auto& cut : fitRow(Tabelle::Benutzer, card)) notes_.push_back("Diver's card, " + cut);
  card_ = std::move(card);
}

void ImportPlan::planEquipment(std::vector<TextRow> pieces, std::vector<TextRow> stored,
                               bool ours) {
  auto next = stored.size();
  int known = 0;
  for (auto& piece : pieces) {
    const auto same = std::find_if(stored.begin(), stored.end(),
                                   [&](const TextRow& row) { return isSamePiece(row, piece); });
    if (same != stored.end()) {
      stored.erase(same);
      ++known;
      continue;
    }
    if (!ours) {
      for (auto& cut : fitRow(Tabelle::Ausrüstung, piece)) notes_.push_back("Equipment, " + cut);
      if (piece[Stück::Nr].value_or("").empty()) piece[Stück::Nr] = std::to_string(++next);
    }
    equipment_.push_back(std::move(piece));
  }
  if (known > 0)
    notes_.push_back("Pieces of equipment that are known already: " + std::to_string(known) + ".");
}

}  // namespace nautrel::exchange
