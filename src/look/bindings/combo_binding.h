// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QComboBox>

#include "look/bindings/binding.h"
#include "platform/controls.h"

namespace nautrel {

/// Shows a ComboBox, as a list to choose from or with a line to type in.
class ComboBinding : public Binding {
 public:
  ComboBinding(ComboBox& box, QComboBox& widget);

 protected:
  bool filter(QEvent* event) override;
  void pushContent() override;

 private:
  void showLine();
  void showFreeText();

  ComboBox& box_;
  QComboBox& out_;
};

}  // namespace nautrel
