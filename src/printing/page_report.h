// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "printing/report_document.h"
#include "printing/selection_formula.h"
#include "printing/template_text.h"
#include "store/database.h"

namespace nautrel {

/// Fills a template that is a page of HTML, with the tables that it names. Raises ReportFault, for
/// one too that would never come to an end.
PageReport fillPage(std::string source, Database database, const SelectionFormula& selection,
                    Values values, const Locale& locale);

}  // namespace nautrel
