// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QString>
#include <vector>

#include "printing/column_widths.h"
#include "printing/report_document.h"

namespace nautrel {

/// The widths of characters of one font, for a first look at whether a text fits.
class CharacterWidths {
 public:
  explicit CharacterWidths(const QFont& font);
  double of(QStringView text) const;

 private:
  double shaped(const QString& text) const;

  QFontMetricsF metrics_;
  std::vector<double> widths_;
  mutable QHash<QString, double> others_;  // of texts that have to be shaped
};

inline constexpr auto kHeadWeight = QFont::DemiBold;

/// The cells of a list as texts of a font, and how wide they are; all measures are twips.
class ListCells {
 public:
  struct Cell {
    QString text;
    double width = 0;
    bool figure = false;  // a number, a date or a time, with its unit: it is never broken
  };

  ListCells(const std::vector<std::string>& texts, const ListLayout& layout);

  std::size_t rows() const { return cells_.size() / columns_; }
  const Cell& at(std::size_t row, std::size_t column) const {
    return cells_[row * columns_ + column];
  }
  /// What the columns need, with the space around their texts.
  const std::vector<ColumnNeed>& needs() const { return needs_; }
  /// The space at each side of a cell for a text of that size in points.
  static double padding(double size);

 private:
  ColumnNeed needOf(std::size_t column, const ListLayout& layout,
                    const CharacterWidths& heads) const;

  std::size_t columns_;
  CharacterWidths widths_;
  std::vector<Cell> cells_;
  std::vector<ColumnNeed> needs_;
};

}  // namespace nautrel
