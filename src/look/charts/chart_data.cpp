// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/charts/chart_data.h"

#include <QLocale>
#include <QStringList>

namespace nautrel {
namespace {

QString numberText(double value) {
  QLocale locale;
  locale.setNumberOptions(QLocale::OmitGroupSeparator);
  return locale.toString(value, 'g', 15);
}

}  // namespace

bool isSpatial(ChartKind kind) {
  return kind == ChartKind::Bars3D || kind == ChartKind::Area3D;
}

QString tabSeparated(const ChartData& data) {
  QString text = data.categoryTitle + u'\t' + data.valueTitle + u'\n';
  for (const ChartRow& row : data.rows) text += row.label + u'\t' + numberText(row.value) + u'\n';
  return text;
}

QString describe(const ChartRow& row) {
  return row.label + ": " + numberText(row.value);
}

QString describe(const ChartData& data) {
  QStringList rows;
  for (const ChartRow& row : data.rows) rows << describe(row);
  return data.valueTitle + " / " + data.categoryTitle + ". " + rows.join("; ");
}

}  // namespace nautrel
