// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/list_binding.h"

#include <QAbstractListModel>
#include <QSignalBlocker>

#include "look/convert.h"

namespace nautrel {

class LinesModel : public QAbstractListModel {
 public:
  LinesModel(const ListBox& list, QObject* parent) : QAbstractListModel(parent), list_(&list) {}

  int rowCount(const QModelIndex& parent) const override { return parent.isValid() ? 0 : rows_; }
  QVariant data(const QModelIndex& index, int role) const override {
    if (role != Qt::DisplayRole || list_ == nullptr) return {};
    return toQt(list_->List(index.row()));
  }

  /// Takes over the lines that have come since the last call.
  void follow() {
    const int rows = list_ == nullptr ? 0 : list_->ListCount();
    if (list_ == nullptr || generation_ != list_->generation() || rows < rows_) {
      beginResetModel();
      generation_ = list_ == nullptr ? 0 : list_->generation();
      rows_ = rows;
      endResetModel();
    } else if (rows > rows_) {
      beginInsertRows({}, rows_, rows - 1);
      rows_ = rows;
      endInsertRows();
    }
  }
  void release() {
    list_ = nullptr;
    follow();
  }

 private:
  const ListBox* list_;
  int rows_ = 0;
  unsigned generation_ = 0;
};

ListBinding::ListBinding(ListBox& list, ListView& view)
    : Binding(list, view), list_(list), view_(view), lines_(new LinesModel(list, &view)) {
  view.setModel(lines_);
  bindUser();
}

// A line that is selected past the view's own events is chosen by an assistive tool.
void ListBinding::bindUser() {
  view_.pressed = [this](int row) { list_.userSelect(row); };
  view_.doubleClicked = [this](int row) { list_.userDoubleClick(row); };
  view_.moved = [this](int by) { list_.userMove(by); };
  view_.typed = [this](const QString& beginning, bool further) {
    list_.userSearch(fromQt(beginning), further);
  };
  connect(view_.selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] {
    const auto rows = view_.selectionModel()->selectedRows();
    list_.userSelect(rows.isEmpty() ? -1 : rows.front().row());
  });
}

void ListBinding::release() {
  if (widget() != nullptr) {
    view_.selectionModel()->disconnect(this);
    lines_->release();
    view_.pressed = view_.doubleClicked = view_.moved = nullptr;
    view_.typed = nullptr;
  }
  Binding::release();
}

void ListBinding::pushContent() {
  const QSignalBlocker quiet(view_.selectionModel());
  lines_->follow();
  const int row = list_.ListIndex();
  if (row < 0) {
    view_.selectionModel()->clear();
  } else if (const auto index = lines_->index(row);
             view_.currentIndex() != index || !view_.selectionModel()->isSelected(index)) {
    view_.setCurrentIndex(index);
    view_.scrollTo(index);
  }
  view_.viewport()->update();
}

}  // namespace nautrel
