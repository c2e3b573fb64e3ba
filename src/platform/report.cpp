// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/report.h"

#include "platform/errors.h"

namespace nautrel {
namespace {

constexpr int kRun = 1;

}  // namespace

Report::Report(Desktop& desktop, std::string windowTitle) : desktop_(desktop) {
  job_.windowTitle = std::move(windowTitle);
}

void Report::setDestination(int destination) {
  if (destination != kPreview && destination != kPrinter) raise(InvalidPropertyValue);
  job_.destination =
      destination == kPreview ? ReportDestination::Preview : ReportDestination::Printer;
}

void Report::Action(int action) {
  if (action != kRun) raise(InvalidPropertyValue);
  desktop_.runReport(job_);
}

}  // namespace nautrel
