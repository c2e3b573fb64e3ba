// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/answer.h"

#include "exchange/import_report.h"

namespace nautrel::exchange {
namespace {

std::string count(int number, const std::string& what) {
  return std::to_string(number) + " " + what + (number == 1 ? "" : "s");
}

Json jsonOf(const Change& change) {
  return Json::object(
      {{"column", change.column}, {"from", change.from}, {"to", change.to}, {"why", change.why}});
}

std::string_view nameOf(Fate fate) {
  switch (fate) {
    case Fate::Taken:
      return "taken";
    case Fate::Duplicate:
      return "duplicate";
    case Fate::LeftOut:
      return "leftOut";
  }
  return {};
}

Json jsonOf(const PlannedDive& dive) {
  Json::Members members = {{"line", dive.source.line}, {"fate", nameOf(dive.fate)}};
  if (!dive.source.id.empty()) members.emplace_back("id", dive.source.id);
  if (dive.fate == Fate::Taken) members.emplace_back("number", dive.source.record.text(Feld::Nr));
  if (!dive.why.empty()) members.emplace_back("why", dive.why);
  if (dive.duplicateOf) members.emplace_back("duplicateOf", *dive.duplicateOf);
  std::vector<Json> changes;
  for (const auto& change : dive.source.changes) changes.push_back(jsonOf(change));
  members.emplace_back("changes", Json::array(changes));
  return Json::object(members);
}

}  // namespace

Answer answerOf(const ImportPlan& plan, bool dryRun) {
  std::vector<Json> dives;
  for (const auto& dive : plan.dives()) dives.push_back(jsonOf(dive));
  const auto counts = plan.counts();
  return {(dryRun ? "Nothing is stored; this is what would be done.\n" : "") + reportText(plan),
          {{"stored", !dryRun},
           {"taken", counts.taken},
           {"changed", counts.changed},
           {"duplicates", counts.duplicates},
           {"leftOut", counts.leftOut},
           {"card", plan.takesCard()},
           {"equipment", plan.takesEquipment()},
           {"notes", Json::array(plan.notes())},
           {"dives", Json::array(dives)}}};
}

Answer answerOf(const ExportReport& report, const std::string& file, const ExportOptions& options) {
  auto text =
      count(report.dives, "dive") + (report.card ? ", the diver's card" : "") +
      (report.equipment > 0 ? ", " + count(report.equipment, "piece") + " of equipment" : "") +
      " written to '" + file + "'.\n";
  auto notes = report.notes;
  for (const auto& note : cannotCarry(options)) notes.push_back(note);
  for (const auto& note : notes) text += note + "\n";
  return {text,
          {{"file", file},
           {"dives", report.dives},
           {"card", report.card},
           {"equipment", report.equipment},
           {"notes", Json::array(notes)}}};
}

Answer answerOf(const std::vector<Finding>& findings) {
  std::string text;
  std::vector<Json> all;
  for (const auto& finding : findings) {
    text += finding.text + "\n";
    all.push_back(Json::object(
        {{"about", nameOf(finding.about)}, {"row", finding.row}, {"text", finding.text}}));
  }
  if (findings.empty()) text = "Nothing is wrong with the logbook.\n";
  return {text, {{"findings", Json::array(all)}}, findings.empty()};
}

Answer answerOf(const Backup& backup) {
  auto text = "The logbook is copied to '" + backup.file + "'.\n";
  for (const auto& file : backup.deleted) text += "Deleted the earlier '" + file + "'.\n";
  return {text, {{"file", backup.file}, {"deleted", Json::array(backup.deleted)}}};
}

Answer answerOf(const Restored& restored, const std::string& file) {
  auto text = "The logbook is now the one of '" + file + "'.\n";
  if (!restored.kept.empty())
    text += "What was there is kept as '" + restored.kept + "'" +
            (restored.logKept ? ", with its log, which could not be taken in" : "") + ".\n";
  return {text, {{"file", file}, {"kept", restored.kept}, {"logKept", restored.logKept}}};
}

}  // namespace nautrel::exchange
