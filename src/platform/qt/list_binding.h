#pragma once

#include "platform/controls.h"
#include "platform/qt/binding.h"
#include "platform/qt/list_view.h"

namespace nautrel {

class LinesModel;

/// Shows a ListBox without copying its lines.
class ListBinding : public Binding {
 public:
  ListBinding(ListBox& list, ListView& view);
  void release() override;

 protected:
  void pushContent() override;

 private:
  void bindUser();

  ListBox& list_;
  ListView& view_;
  LinesModel* lines_;
};

}  // namespace nautrel
