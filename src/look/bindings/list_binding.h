// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "look/bindings/binding.h"
#include "look/bindings/list_view.h"
#include "platform/controls.h"

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
