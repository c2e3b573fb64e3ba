// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/dive_rows.h"

#include <utility>

namespace nautrel::exchange {
namespace {

Value valueOf(Cell&& cell) {
  return cell ? Value(std::move(*cell)) : Value::null();
}

Cell cellOf(Value&& value) {
  if (value.isNull()) return {};
  return std::move(value).joined({});
}

}  // namespace

DiveRecord readDive(const Recordset& dives) {
  DiveRecord dive;
  for (int ordinal = 0; ordinal < kDiveColumns; ++ordinal) {
    auto value = dives.Fields(ordinal);
    if (diveColumn(ordinal).isFlag)
      dive.flags[ordinal] = value.isYes();
    else
      dive.texts[ordinal] = cellOf(std::move(value));
  }
  return dive;
}

void appendDive(Recordset& dives, const DiveRecord& dive) {
  dives.AddNew();
  for (int ordinal = 0; ordinal < kDiveColumns; ++ordinal)
    if (diveColumn(ordinal).isFlag)
      dives.setField(ordinal, dive.flags[ordinal]);
    else
      dives.setField(ordinal, valueOf(Cell(dive.texts[ordinal])));
  dives.Update();
}

TextRow readRow(const Recordset& rows) {
  TextRow row;
  for (int ordinal = 0; ordinal < rows.FieldCount(); ++ordinal)
    row.push_back(cellOf(rows.Fields(ordinal)));
  return row;
}

void writeRow(Recordset& rows, const TextRow& row) {
  for (int ordinal = 0; ordinal < rows.FieldCount(); ++ordinal)
    rows.setField(ordinal, valueOf(Cell(row[ordinal])));
  rows.Update();
}

}  // namespace nautrel::exchange
