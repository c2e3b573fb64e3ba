// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/table_binding.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <algorithm>

#include "look/convert.h"
#include "platform/form.h"
#include "platform/program.h"

namespace nautrel {
namespace {

constexpr int kFixedColumn = 18;
constexpr int kNarrowest = 40;
constexpr int kWidest = 220;
constexpr int kRowsMeasured = 40;
// More of a long text than any screen has room for on one line.
constexpr int kCharactersDrawn = 1000;

QString onOneLine(const std::string& text) {
  auto line = toQt(text).left(kCharactersDrawn);
  line.replace("\r\n", " ").replace('\r', ' ').replace('\n', ' ');
  return line;
}

}  // namespace

class GridModel : public QAbstractTableModel {
 public:
  GridModel(Grid& grid, QObject* parent) : QAbstractTableModel(parent), grid_(&grid) {}

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() || grid_ == nullptr ? 0 : grid_->rowCount();
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() || grid_ == nullptr ? 0 : static_cast<int>(grid_->headings().size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (grid_ == nullptr || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        (role != Qt::DisplayRole && role != Qt::AccessibleTextRole))
      return {};
    QVariant shown;
    // The view asks whenever it likes, also while it paints.
    grid_->form().program().desktop().atEdge([&] {
      const auto& cell = grid_->row(index.row())[static_cast<std::size_t>(index.column())];
      shown = role == Qt::DisplayRole ? onOneLine(cell) : toQt(cell);
    });
    return shown;
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (grid_ == nullptr || role != Qt::DisplayRole || orientation == Qt::Vertical) return {};
    return toQt(grid_->headings()[static_cast<std::size_t>(section)]);
  }

  /// Takes over the rows of a new filling; false if they are those of the last call.
  bool follow() {
    if (generation_ == grid_->generation()) return false;
    beginResetModel();
    generation_ = grid_->generation();
    endResetModel();
    return true;
  }
  void release() {
    beginResetModel();
    grid_ = nullptr;
    endResetModel();
  }

 private:
  Grid* grid_;
  unsigned generation_ = 0;
};

TableView::TableView(QWidget* parent) : QTableView(parent) {
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setAlternatingRowColors(true);
  setCornerButtonEnabled(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setFrameShape(NoFrame);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setResizeContentsPrecision(kRowsMeasured);
  auto* fixedColumn = verticalHeader();
  fixedColumn->setFixedWidth(kFixedColumn);
  fixedColumn->setSectionResizeMode(QHeaderView::Fixed);
  fixedColumn->setDefaultSectionSize(fontMetrics().height() + 6);
  fixedColumn->setSectionsClickable(false);
  fixedColumn->setHighlightSections(false);
}

QSize TableView::sizeHint() const {
  return {760, 460};
}

TableBinding::TableBinding(Grid& grid, TableView& view)
    : Binding(grid, view), grid_(grid), view_(view), model_(new GridModel(grid, &view)) {
  view.setModel(model_);
}

void TableBinding::release() {
  if (widget() != nullptr) model_->release();
  Binding::release();
}

void TableBinding::pushContent() {
  if (model_->follow()) fitColumns();
  if (grid_.Width() > 0 && grid_.Height() > 0)
    view_.setMaximumSize(toPixels(grid_.Width()), toPixels(grid_.Height()));
}

void TableBinding::fitColumns() {
  view_.resizeColumnsToContents();
  for (int column = 0; column < model_->columnCount(); ++column)
    view_.setColumnWidth(column, std::clamp(view_.columnWidth(column), kNarrowest, kWidest));
}

}  // namespace nautrel
