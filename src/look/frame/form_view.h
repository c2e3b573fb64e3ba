// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>
#include <vector>

#include "look/bindings/binding.h"
#include "platform/form.h"
#include "platform/look.h"

class QTimer;
class QWidget;

namespace nautrel {

class QtLooks;

/// What the looks of all windows have in common: the bindings of the controls and the news that
/// wait to be shown.
class FormView : public FormLook {
 public:
  FormView(QtLooks& looks, Form& form);
  ~FormView() override;

  void controlChanged(Control& control) override;
  void formChanged() override;
  void refresh(Control& control) override;

  Form& form() const { return form_; }
  const std::vector<std::unique_ptr<Binding>>& bindings() const { return bindings_; }
  /// The binding in whose widget the control is seen.
  Binding* bindingOf(const Control& control) const;
  /// The binding whose widget is `widget` or holds it.
  Binding* bindingAround(const QWidget* widget) const;

  /// Brings all news onto the screen.
  void flush();
  /// Gives the focus on the screen to the widget of the control that has it.
  void pushFocus();
  /// Forces the changed widgets to paint at once, within a running handler.
  void repaintNow();

  /// Takes over another font or other colours of the desktop.
  void restyle();

  virtual QWidget* root() const = 0;

 protected:
  QtLooks& looks() const { return looks_; }
  void bindControls();
  void releaseBindings();
  /// Lets the form's timers run from now on.
  void startTimers();
  virtual void pushForm() = 0;
  /// Gives the window the size of what it holds.
  virtual void measure() {}

 private:
  void news();

  QtLooks& looks_;
  Form& form_;
  std::vector<std::unique_ptr<Binding>> bindings_;
  std::vector<QTimer*> timers_;
  bool formDirty_ = true;
  bool focusDirty_ = true;
};

}  // namespace nautrel
