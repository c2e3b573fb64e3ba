// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>

namespace nautrel {

class Control;
class Form;

/// How a form is shown. The model calls it after every change; the look takes the news over when
/// the outermost handler ends, a box opens or a repaint is due.
class FormLook {
 public:
  virtual ~FormLook() = default;
  virtual void controlChanged(Control& control) = 0;
  /// Caption, geometry, state, colour, default button or focus are new.
  virtual void formChanged() = 0;
  virtual void refresh(Control& control) = 0;
  virtual void show() = 0;
  /// Out of sight for good; the form's object may live on until its handlers have ended.
  virtual void close() = 0;
};

/// Makes the look of a form, and gives the form its Width and Height by it.
class Looks {
 public:
  virtual ~Looks() = default;
  virtual std::unique_ptr<FormLook> make(Form& form) = 0;
  /// Brings what the models say onto the screen.
  virtual void flush() = 0;
};

}  // namespace nautrel
