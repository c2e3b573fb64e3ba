// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/template_rows.h"

#include <algorithm>

#include "store/contract.h"

namespace nautrel {
namespace {

Values shown(const Value& value, const Locale& locale) {
  if (!value.isText() && !value.isNull()) return Values(value.isYes());
  auto text = value.joined(locale);
  return text.empty() ? Values(false) : Values(std::move(text));
}

}  // namespace

TemplateRows::TemplateRows(Database database, std::string_view table, const Names& names,
                           const SelectionFormula& selection, const Locale& locale)
    : selection_(selection.concerns(table) ? &selection : nullptr),
      columns_(namedColumns(table, names)),
      rows_(database.OpenRecordset(table, columns_)),
      locale_(locale) {
  for (const auto& name : names)
    if (alternatives(name).size() > 1) choices_.push_back(name);
}

Columns TemplateRows::namedColumns(std::string_view table, const Names& names) const {
  Columns named;
  for (const auto& known : logbookTables())
    for (const auto& column : known.columns)
      if (known.name == table && (names.contains(column.name) ||
                                  (selection_ != nullptr && selection_->column() == column.name)))
        named.emplace_back(column.name);
  return named;
}

bool TemplateRows::selected() const {
  return selection_ == nullptr ||
         selection_->selects(rows_.Fields(selection_->column()).joined(locale_));
}

Values TemplateRows::current() const {
  Values row;
  for (const auto& column : columns_) row[column] = shown(rows_.Fields(column), locale_);
  for (const auto& choice : choices_)
    row[choice] = Values(std::ranges::any_of(alternatives(choice), [&](const auto& name) {
      const auto* value = row.get(name);
      return value != nullptr && !value->is_false();
    }));
  return row;
}

void TemplateRows::each(const std::function<void(Values)>& visit) {
  for (; !rows_.Eof(); rows_.MoveNext())
    if (selected()) visit(current());
}

}  // namespace nautrel
