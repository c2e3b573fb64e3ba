// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <vector>

#include "exchange/backup.h"
#include "exchange/check.h"
#include "exchange/export.h"
#include "exchange/import_plan.h"
#include "exchange/json.h"
#include "exchange/restore.h"

namespace nautrel::exchange {

/// What a command has done, to a person and to a program.
struct Answer {
  std::string text;  // lines
  Json::Members members;
  bool good = true;
};

Answer answerOf(const ImportPlan& plan, bool dryRun);
Answer answerOf(const ExportReport& report, const std::string& file, const ExportOptions& options);
Answer answerOf(const std::vector<Finding>& findings);
Answer answerOf(const Backup& backup);
Answer answerOf(const Restored& restored, const std::string& file);

}  // namespace nautrel::exchange
