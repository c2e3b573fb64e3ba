// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "exchange/import_source.h"
#include "store/database.h"

namespace nautrel::exchange {

/// What becomes of a dive of the file.
enum class Fate {
  Taken,
  Duplicate,  // stands in the logbook already
  LeftOut,    // lacks what a dive must have, or the user does not want it
};

/// A line of the preview and of the report.
struct PlannedDive {
  SourceDive source;  // record.texts[Feld::Nr] is the new number of a dive that is taken
  Fate fate = Fate::Taken;
  std::string why = {};  // of what is not taken
  /// The number of the stored dive that this one repeats; stays where the user insists.
  std::optional<std::string> duplicateOf = {};
  bool insisted = false;
  bool unwanted = false;
};

struct ImportOptions {
  bool card = false;
  bool equipment = false;
};

/// What an import would do, before it does anything.
class ImportPlan {
 public:
  /// Holds the file against the logbook. Raises Refused for an open question, and what
  /// OpenDatabase and the recordsets raise.
  static ImportPlan make(const ImportSource& source, const Answers& answers, Workspace& workspace,
                         const std::string& logbook, const Locale& locale,
                         const ImportOptions& options = {});

  /// In the order in which they will stand in the logbook.
  const std::vector<PlannedDive>& dives() const { return dives_; }
  struct Counts {
    int taken = 0;
    int changed = 0;  // of those taken
    int duplicates = 0;
    int leftOut = 0;
  };
  Counts counts() const;

  /// Takes a duplicate all the same, or takes that back. The new numbers follow.
  void insist(std::size_t place, bool yes = true);
  /// Leaves a dive out, or takes that back.
  void leaveOut(std::size_t place, bool yes = true);
  /// The same for all dives at once.
  void leaveAllOut(bool yes);

  /// Why the plan cannot be carried out; empty if it can.
  std::string refusal() const;
  /// Taken as it stands: a file of ours into an empty logbook.
  bool asItStands() const { return asItStands_; }
  bool takesCard() const { return wantsCard_ && !card_.empty(); }
  int takesEquipment() const { return wantsEquipment_ ? static_cast<int>(equipment_.size()) : 0; }
  /// Leave the card or the equipment that was planned where they are, or take that back.
  void wantCard(bool yes) { wantsCard_ = yes; }
  void wantEquipment(bool yes) { wantsEquipment_ = yes; }
  /// What concerns the whole file, a sentence each.
  const std::vector<std::string>& notes() const { return notes_; }

  /// Stores everything in one transaction. False if `progress` cancelled it: then, as after every
  /// failure, nothing is stored. Raises Refused if the plan cannot be carried out or the logbook
  /// has changed since, and what the recordsets raise.
  bool execute(Workspace& workspace, const std::string& logbook,
               const Progress& progress = {}) const;

 private:
  void planDives(std::vector<SourceDive> dives, const std::vector<DiveRecord>& stored,
                 const Locale& locale);
  void planCard(TextRow card, const std::vector<TextRow>& stored, bool ours);
  void planEquipment(std::vector<TextRow> pieces, std::vector<TextRow> stored, bool ours);
  void settleFates();
  void requireUnchanged(Database& database) const;
  bool appendDives(Database& database, const Progress& progress) const;
  void storeCard(Database& database) const;
  void appendEquipment(Database& database) const;

  std::vector<PlannedDive> dives_;
  TextRow card_;
  std::vector<TextRow> equipment_;
  std::vector<std::string> notes_;
  bool wantsCard_ = true;
  bool wantsEquipment_ = true;
  bool asItStands_ = false;
  int storedDives_ = 0;
  Cell lastNumber_;  // as stored; Null without dives
  int firstNew_ = 1;
};

}  // namespace nautrel::exchange
