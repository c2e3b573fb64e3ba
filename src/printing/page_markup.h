// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>

namespace nautrel {

/// HTML without its remarks.
std::string withoutRemarks(std::string_view html);

/// Cuts the first element of that name out of the HTML and gives what it holds, as plain text;
/// nothing if there is none.
std::string cutElement(std::string& html, std::string_view name);

/// Raises ReportFault for HTML that cannot be laid out in any time: elements too deep in each
/// other, tables of too many cells, words without an end.
void checkMarkup(std::string_view html);

}  // namespace nautrel
