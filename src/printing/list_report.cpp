// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/list_report.h"

#include "printing/list_template.h"
#include "printing/template_marks.h"
#include "printing/template_rows.h"

namespace nautrel {
namespace {

// Longer than any cell that is shown in full; what is behind it is cut all the same.
constexpr std::size_t kLongestCell = 4000;
constexpr std::size_t kMostBytes = 64 << 20;

/// Fills the cells of one row after the other.
class Cells {
 public:
  explicit Cells(const ListTemplate& list) {
    for (std::size_t column = 0; column < list.cells.size(); ++column)
      columns_.emplace_back(list.cells[column],
                            "Column \"" + list.layout.columns[column].head + "\"");
  }

  void add(const Values& row) {
    for (auto& column : columns_) {
      auto cell = column.fill(row);
      if (cell.size() > kLongestCell) cell = firstCharacters(cell, kLongestCell);
      bytes_ += cell.size();
      texts_.push_back(std::move(cell));
    }
    if (bytes_ > kMostBytes) throw ReportFault{"The list is too long to be shown."};
  }
  std::vector<std::string> take() { return std::move(texts_); }

 private:
  std::vector<TemplateText> columns_;
  std::vector<std::string> texts_;
  std::size_t bytes_ = 0;
};

Names namesOf(const ListTemplate& list) {
  std::string all = list.title + list.subtitle + list.footer;
  for (const auto& cell : list.cells) all += cell;
  return namesIn(templatePieces(all));
}

}  // namespace

ListReport fillList(const std::string& source, Database database, const SelectionFormula& selection,
                    Values values, const Locale& locale) {
  const auto list = parseListTemplate(source);
  ListReport report;
  report.layout = list.layout;
  Cells cells(list);
  Values last(false);
  std::size_t count = 0;
  values["first"] = Values(false);
  TemplateRows(std::move(database), list.table, namesOf(list), selection, locale)
      .each([&](Values row) {
        if (count++ == 0) values["first"] = Values(row);
        cells.add(row);
        last = std::move(row);
      });
  report.cells = cells.take();
  values["last"] = std::move(last);
  values["count"] = Values(std::to_string(count));
  values["several"] = Values(count > 1);
  report.title = filled(list.title, values, "The title");
  report.subtitle = filled(list.subtitle, values, "The subtitle");
  report.footer = footer(list.footer, std::move(values));
  return report;
}

}  // namespace nautrel
