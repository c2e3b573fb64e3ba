// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <kainjow/mustache.hpp>
#include <string>

namespace nautrel {

/// What a template is filled with.
using Values = kainjow::mustache::data;

/// A text with marks in double braces, read once and filled as often as it takes.
class TemplateText {
 public:
  /// Raises ReportFault, which names `what`: the marks do not fit together, or too many sections
  /// stand in each other.
  TemplateText(const std::string& source, const std::string& what);

  /// For a page of HTML: what is filled in is escaped, and its lines stay lines.
  void escapeHtml();
  std::string fill(const Values& values) { return text_.render(values); }

 private:
  kainjow::mustache::mustache text_;
};

/// Reads and fills a text in one go.
std::string filled(const std::string& source, const Values& values, const std::string& what);

/// The foot of a page, which may name {{page}} and {{pages}} beside the values.
std::function<std::string(int page, int pages)> footer(const std::string& source, Values values);

}  // namespace nautrel
