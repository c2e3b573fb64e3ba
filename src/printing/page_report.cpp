// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/page_report.h"

#include <algorithm>
#include <map>

#include "printing/page_markup.h"
#include "printing/template_marks.h"
#include "printing/template_rows.h"
#include "store/contract.h"

namespace nautrel {
namespace {

constexpr const char* kFooter = "| Page {{page}} of {{pages}}";
constexpr double kMostBytes = 8 << 20;

/// How much there is of a table.
struct TableSize {
  double rows = 0;
  std::map<std::string, double, std::less<>> bytes;  // of each column, all rows together

  void add(const Values& row, const Names& names) {
    ++rows;
    for (const auto& name : names)
      if (const auto* value = row.get(name); value != nullptr && value->is_string())
        bytes[name] += static_cast<double>(value->string_value().size());
  }
};

using TableSizes = std::map<std::string, TableSize, std::less<>>;

/// Reckons what filling a template writes and how often it goes round, before it is done: tables
/// within tables grow beyond any patience.
class Reckoning {
 public:
  explicit Reckoning(const TableSizes& tables) : tables_(tables) {}

  void add(const TemplatePiece& piece) {
    using Kind = TemplatePiece::Kind;
    const double times = open_.empty() ? 1 : open_.back().times;
    bytes_ += times;
    if (piece.kind == Kind::Text)
      bytes_ += times * static_cast<double>(piece.text.size());
    else if (piece.kind == Kind::Value)
      bytes_ += times * usualLength(piece.text);
    else if (piece.kind == Kind::Begin || piece.kind == Kind::BeginWithout)
      begin(piece, times);
    else if (piece.kind == Kind::End && !open_.empty())
      open_.pop_back();
  }
  double bytes() const { return bytes_; }

 private:
  struct Section {
    const TableSize* table;  // null for one that is no table
    double times;
  };

  void begin(const TemplatePiece& piece, double times) {
    const auto table = tables_.find(piece.text);
    if (table == tables_.end() || piece.kind == TemplatePiece::Kind::BeginWithout)
      open_.push_back({nullptr, times});
    else
      open_.push_back({&table->second, times * table->second.rows});
  }
  double usualLength(std::string_view column) const {
    for (auto section = open_.rbegin(); section != open_.rend(); ++section) {
      if (section->table == nullptr || section->table->rows == 0) continue;
      const auto bytes = section->table->bytes.find(column);
      if (bytes != section->table->bytes.end()) return bytes->second / section->table->rows;
    }
    return 0;
  }

  const TableSizes& tables_;
  std::vector<Section> open_;
  double bytes_ = 0;
};

void checkLength(const std::vector<TemplatePiece>& pieces, const TableSizes& tables) {
  Reckoning reckoning(tables);
  for (const auto& piece : pieces) reckoning.add(piece);
  if (reckoning.bytes() > kMostBytes) throw ReportFault{"The page: it is too long to be shown."};
}

/// Cuts head and foot out of the page. What a head without a title has left of it is its title.
ReportFrame cutFrame(std::string& source, const Values& values) {
  const auto head = cutElement(source, "header");
  const auto foot = cutElement(source, "footer");
  const auto bar = std::min(head.find('|'), head.size());
  const auto part = [&](std::size_t from, std::size_t to) {
    return std::string(trimmed(filled(head.substr(from, to), values, "The header")));
  };
  ReportFrame frame;
  frame.title = part(0, bar);
  frame.subtitle = part(std::min(bar + 1, head.size()), head.size());
  if (frame.title.empty()) std::swap(frame.title, frame.subtitle);
  frame.footer = footer(foot.empty() ? kFooter : foot, values);
  return frame;
}

}  // namespace

PageReport fillPage(std::string source, Database database, const SelectionFormula& selection,
                    Values values, const Locale& locale) {
  source = withoutRemarks(source);
  const auto names = namesIn(templatePieces(source));
  TableSizes sizes;
  for (const auto& table : logbookTables()) {
    const std::string name(table.name);
    if (!names.contains(name)) continue;
    Values rows(Values::type::list);
    TemplateRows(database, name, names, selection, locale).each([&](const Values& row) {
      sizes[name].add(row, names);
      rows.push_back(row);
    });
    values[name] = std::move(rows);
  }
  checkLength(templatePieces(source), sizes);
  PageReport report{cutFrame(source, values)};
  TemplateText page(source, "The page");
  page.escapeHtml();
  report.html = page.fill(values);
  checkMarkup(report.html);
  return report;
}

}  // namespace nautrel
