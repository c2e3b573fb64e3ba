// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/tick_table_binding.h"

#include <QAbstractTableModel>
#include <QHeaderView>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <algorithm>

#include "look/convert.h"
#include "platform/form.h"
#include "platform/program.h"

namespace nautrel {
namespace {

constexpr int kRowsMeasured = 40;
constexpr int kWidest = 220;

}  // namespace

class TickModel : public QAbstractTableModel {
 public:
  TickModel(TickTable& table, QObject* parent) : QAbstractTableModel(parent), table_(&table) {}

  int rowCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() ? 0 : rows_;
  }
  int columnCount(const QModelIndex& parent = {}) const override {
    return parent.isValid() || table_ == nullptr ? 0 : static_cast<int>(table_->headings().size());
  }
  QVariant data(const QModelIndex& index, int role) const override {
    if (table_ == nullptr || !index.isValid() || index.row() >= table_->rowCount()) return {};
    QVariant shown;
    // The view asks whenever it likes, also while it paints.
    table_->form().program().desktop().atEdge(
        [&] { shown = shownOf(table_->row(index.row()), index.column(), role); });
    return shown;
  }
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    if (role == Qt::TextAlignmentRole) return int(Qt::AlignLeft | Qt::AlignVCenter);
    if (table_ == nullptr || role != Qt::DisplayRole || orientation == Qt::Vertical) return {};
    return toQt(table_->headings()[static_cast<std::size_t>(section)]);
  }
  Qt::ItemFlags flags(const QModelIndex& index) const override {
    const auto plain = QAbstractTableModel::flags(index);
    return index.column() == 0 ? plain | Qt::ItemIsUserCheckable : plain;
  }
  // The tick is pressed, by the mouse or by an assistive tool.
  bool setData(const QModelIndex& index, const QVariant&, int role) override {
    if (table_ == nullptr || role != Qt::CheckStateRole) return false;
    table_->userTick(index.row());
    return true;
  }

  /// Takes over other rows, or what is new in them; true for other rows.
  bool follow() {
    const bool others = generation_ != table_->generation();
    if (others) {
      beginResetModel();
      generation_ = table_->generation();
      rows_ = table_->rowCount();
      endResetModel();
    } else if (stamp_ != table_->stamp() && rows_ > 0) {
      emit dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
    }
    stamp_ = table_->stamp();
    return others;
  }
  void release() {
    beginResetModel();
    table_ = nullptr;
    rows_ = 0;
    endResetModel();
  }

 private:
  static QVariant shownOf(const TickTable::Row& row, int column, int role) {
    const auto text = toQt(row.cells[static_cast<std::size_t>(column)]);
    if (column == 0 && role == Qt::CheckStateRole) return row.ticked ? Qt::Checked : Qt::Unchecked;
    if (role == Qt::ToolTipRole) return row.fixed.empty() || column > 0 ? text : toQt(row.fixed);
    if (column == 0 && role == Qt::AccessibleTextRole)
      return row.ticked ? QStringLiteral("taken") : QStringLiteral("not taken");
    return role == Qt::DisplayRole || role == Qt::AccessibleTextRole ? QVariant(text) : QVariant();
  }

  TickTable* table_;
  int rows_ = 0;
  unsigned generation_ = 0;
  unsigned stamp_ = 0;
};

TickTableView::TickTableView(QWidget* parent) : QTableView(parent) {
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setAlternatingRowColors(true);
  setShowGrid(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setFocusPolicy(Qt::TabFocus);
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setSectionsClickable(false);
  horizontalHeader()->setResizeContentsPrecision(kRowsMeasured);
  horizontalHeader()->setStretchLastSection(true);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
}

QSize TickTableView::sizeHint() const {
  return {680, 220};
}

int TickTableView::rowsToMove(int key) const {
  const int all = model() == nullptr ? 0 : model()->rowCount();
  const int page = std::max(1, viewport()->height() / std::max(1, rowHeight(0)) - 1);
  switch (key) {
    case Qt::Key_Up:
      return -1;
    case Qt::Key_Down:
      return 1;
    case Qt::Key_PageUp:
      return -page;
    case Qt::Key_PageDown:
      return page;
    case Qt::Key_Home:
      return -all;
    case Qt::Key_End:
      return all;
    default:
      return 0;
  }
}

TickTableBinding::TickTableBinding(TickTable& table, TickTableView& view)
    : Binding(table, view), table_(table), view_(view), model_(new TickModel(table, &view)) {
  view.setModel(model_);
  connect(view.selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          [this](const QModelIndex& row) {
            if (row.isValid()) table_.userSelect(row.row());
          });
}

void TickTableBinding::release() {
  if (widget() != nullptr) {
    view_.selectionModel()->disconnect(this);
    model_->release();
  }
  Binding::release();
}

void TickTableBinding::restyle() {
  view_.verticalHeader()->setDefaultSectionSize(view_.fontMetrics().height() + 6);
  fitColumns();
}

bool TickTableBinding::filter(QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  return !(key.modifiers() & ~Qt::KeypadModifier) && keyPressed(key.key());
}

bool TickTableBinding::keyPressed(int key) {
  const int rows = view_.rowsToMove(key);
  if (rows != 0) table_.userMove(rows);
  if (key == Qt::Key_Space) table_.userTick(table_.current());
  return rows != 0 || key == Qt::Key_Space;
}

void TickTableBinding::pushContent() {
  const QSignalBlocker quiet(view_.selectionModel());
  if (model_->follow()) fitColumns();
  const auto current = model_->index(table_.current(), 0);
  if (table_.current() < 0 ||
      (view_.currentIndex().row() == current.row() && view_.selectionModel()->hasSelection()))
    return;
  view_.selectionModel()->setCurrentIndex(
      current, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  view_.scrollTo(current);
  view_.viewport()->update();
}

void TickTableBinding::fitColumns() {
  view_.resizeColumnsToContents();
  for (int column = 0; column < model_->columnCount(); ++column)
    view_.setColumnWidth(column, std::min(view_.columnWidth(column), kWidest));
}

}  // namespace nautrel
