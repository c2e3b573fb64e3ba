// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/dive_rows.h"
#include "exchange/import_plan.h"
#include "platform/errors.h"
#include "store/transaction.h"

namespace nautrel::exchange {

void ImportPlan::requireUnchanged(Database& database) const {
  auto dives = database.OpenRecordset(Tabelle::Logbuch, {std::string(diveColumn(Feld::Nr).name)});
  Cell last;
  if (!dives.Eof()) {
    dives.MoveLast();
    if (const auto value = dives.Fields(Feld::Nr); !value.isNull()) last = value.text({});
  }
  if (dives.RecordCount() != storedDives_ || last != lastNumber_)
    throw Refused{"The logbook has changed since the file was read. Please try again."};
}

bool ImportPlan::appendDives(Database& database, const Progress& progress) const {
  auto dives = database.OpenRecordset(Tabelle::Logbuch);
  std::size_t done = 0;
  for (const auto& dive : dives_) {
    if (progress && !progress(done++, dives_.size())) return false;
    if (dive.fate == Fate::Taken) appendDive(dives, dive.source.record);
  }
  return true;
}

void ImportPlan::storeCard(Database& database) const {
  auto cards = database.OpenRecordset(Tabelle::Benutzer);
  if (!cards.Eof() && !isBlank(readRow(cards)))
    throw Refused{"The diver's card was filled since the file was read. Please try again."};
  if (cards.Eof())
    cards.AddNew();
  else
    cards.Edit();
  writeRow(cards, card_);
}

void ImportPlan::appendEquipment(Database& database) const {
  auto pieces = database.OpenRecordset(Tabelle::Ausrüstung);
  for (const auto& piece : equipment_) {
    pieces.AddNew();
    writeRow(pieces, piece);
  }
}

bool ImportPlan::execute(Workspace& workspace, const std::string& logbook,
                         const Progress& progress) const {
  if (auto why = refusal(); !why.empty()) throw Refused{std::move(why)};
  auto database = workspace.OpenDatabase(logbook);
  {
    Transaction transaction(database);
    requireUnchanged(database);
    if (!appendDives(database, progress)) return false;
    if (takesCard()) storeCard(database);
    if (takesEquipment() > 0) appendEquipment(database);
    transaction.commit();
  }
  // What is committed is stored: on a full disk it waits in the log, and is no reason to say it
  // failed.
  resumeNext([&] { workspace.settle(); });
  return true;
}

}  // namespace nautrel::exchange
