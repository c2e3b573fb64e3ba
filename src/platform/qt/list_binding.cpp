#include "platform/qt/list_binding.h"

#include <QAbstractListModel>
#include <QKeyEvent>
#include <QSignalBlocker>

#include "platform/form.h"
#include "platform/qt/convert.h"

namespace nautrel {

ListView::ListView(QWidget* parent) : QListView(parent) {
  setUniformItemSizes(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
}

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
  watch(*view.viewport());
  connect(view.selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& current) {
            if (byKey_) userSelected(current.row());
          });
  connect(&view, &QListView::clicked, this,
          [this](const QModelIndex& index) { userSelected(index.row()); });
}

void ListBinding::release() {
  if (widget() != nullptr) {
    lines_->release();
    view_.viewport()->removeEventFilter(this);
  }
  Binding::release();
}

void ListBinding::userSelected(int row) {
  if (row >= 0) list_.userSelect(row);
}

bool ListBinding::filter(QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
      byKey_ = true;
      return false;
    case QEvent::KeyRelease:
      byKey_ = false;
      return false;
    case QEvent::MouseButtonPress:
      byKey_ = false;
      return !list_.hasFocus();
    case QEvent::MouseButtonDblClick:
      list_.userDoubleClick();
      return true;
    default:
      return false;
  }
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
