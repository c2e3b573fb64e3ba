// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/desktop.h"
#include "printing/report_document.h"

namespace nautrel {

/// Fills the job's template from the logbook that stands beside it. Raises ReportFault: the
/// template is missing or broken or asks for more than can be shown, the selection cannot be read,
/// the logbook cannot be opened.
ReportDocument makeReport(const ReportJob& job, const DateTime& printed, const Locale& locale);

}  // namespace nautrel
