// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <utility>

#include "platform/desktop.h"

namespace nautrel {

/// The report control of a window: which template runs, over which rows, and where to.
class Report {
 public:
  static constexpr int kPreview = 0;
  static constexpr int kPrinter = 1;

  explicit Report(Desktop& desktop, std::string windowTitle = {});

  void setReportFileName(std::string path) { job_.templatePath = std::move(path); }
  /// The rows that take part; without a formula all of them do.
  void setSelectionFormula(std::string formula) { job_.selectionFormula = std::move(formula); }
  /// kPreview shows a preview window, kPrinter prints. Raises 380 for anything else.
  void setDestination(int destination);
  /// 1 runs the report at once and returns when it is done, or its preview closed. Raises 380 for
  /// anything else. A report that fails tells the user so by itself.
  void Action(int action);

 private:
  Desktop& desktop_;
  ReportJob job_;
};

}  // namespace nautrel
