// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "printing/report_document.h"
#include "printing/selection_formula.h"
#include "printing/template_text.h"
#include "store/database.h"

namespace nautrel {

/// Fills a template that describes a list. Raises ReportFault.
ListReport fillList(const std::string& source, Database database, const SelectionFormula& selection,
                    Values values, const Locale& locale);

}  // namespace nautrel
