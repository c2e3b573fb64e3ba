// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/import_report.h"

#include "exchange/plain_text.h"

namespace nautrel::exchange {
namespace {

std::string sourceOf(const SourceDive& dive) {
  auto text = "Line " + std::to_string(dive.line);
  const auto number = dive.number ? std::to_string(*dive.number) : std::string();
  if (!dive.id.empty()) text += " (" + shown(dive.id) + ")";
  if (!number.empty() && number != dive.id) text += ", there dive " + number;
  return text;
}

std::string fateOf(const PlannedDive& dive) {
  switch (dive.fate) {
    case Fate::Duplicate:
      return "skipped, " + dive.why;
    case Fate::LeftOut:
      return "left out, " + dive.why;
    case Fate::Taken:
      break;
  }
  auto text = "taken as dive " + std::string(dive.source.record.text(Feld::Nr));
  if (dive.duplicateOf) text += ", though it stands in the logbook as dive " + *dive.duplicateOf;
  return text;
}

std::string summaryOf(const ImportPlan& plan) {
  const auto counts = plan.counts();
  return "Dives taken: " + std::to_string(counts.taken) +
         ", of them changed: " + std::to_string(counts.changed) +
         ". Skipped as duplicates: " + std::to_string(counts.duplicates) +
         ". Left out: " + std::to_string(counts.leftOut) + ".\n";
}

}  // namespace

std::string changeText(const Change& change) {
  return change.column + ": '" + shown(change.from) + "' became '" + shown(change.to) + "', " +
         change.why;
}

std::string reportText(const PlannedDive& dive) {
  auto text = sourceOf(dive.source) + ": " + fateOf(dive) + "\n";
  for (const auto& change : dive.source.changes) text += "    " + changeText(change) + "\n";
  return text;
}

std::string reportText(const ImportPlan& plan) {
  auto text = summaryOf(plan);
  if (plan.takesCard()) text += "The diver's card is taken.\n";
  if (plan.takesEquipment() > 0)
    text += "Pieces of equipment taken: " + std::to_string(plan.takesEquipment()) + ".\n";
  for (const auto& note : plan.notes()) text += note + "\n";
  for (const auto& dive : plan.dives()) text += reportText(dive);
  return text;
}

}  // namespace nautrel::exchange
