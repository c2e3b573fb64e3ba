#pragma once

#include <QListView>

#include "platform/controls.h"
#include "platform/qt/binding.h"

namespace nautrel {

/// A list of lines in a window's design; ListBinding gives it its lines.
class ListView : public QListView {
 public:
  explicit ListView(QWidget* parent = nullptr);
};

class LinesModel;

/// Shows a ListBox without copying its lines.
class ListBinding : public Binding {
 public:
  ListBinding(ListBox& list, ListView& view);
  void release() override;

 protected:
  bool filter(QEvent* event) override;
  void pushContent() override;

 private:
  void userSelected(int row);

  ListBox& list_;
  ListView& view_;
  LinesModel* lines_;
  bool byKey_ = false;
};

}  // namespace nautrel
