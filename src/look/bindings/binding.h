// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <memory>

#include "platform/control.h"

namespace nautrel {

/// Ties one control to its widget: model to widget in push(), the user's actions the other way.
/// There is one kind of binding for each kind of control, none for a window.
class Binding : public QObject {
 public:
  Binding(Control& control, QWidget& widget);

  Control& control() const { return control_; }
  /// Whether the control is seen in this widget, be it its own or one that shows several.
  virtual bool shows(const Control& control) const { return &control == &control_; }
  QWidget* widget() const { return widget_; }

  /// Brings the widget up to date; signals of the widget are blocked meanwhile.
  void push();
  /// Nothing of the widget reaches the control any more.
  virtual void release();
  /// The desktop's font or colours are others.
  virtual void restyle() {}
  /// Whether the widget tells who of the window has the focus, besides its own.
  virtual bool followsFocus() const { return false; }
  void markDirty() { dirty_ = true; }
  bool dirty() const { return dirty_; }

 protected:
  virtual void pushContent() = 0;
  bool eventFilter(QObject* watched, QEvent* event) override;
  /// The widget's own share of the filter, before the keys that all of them have in common.
  virtual bool filter(QEvent* /*event*/) { return false; }
  /// Lets the filter see what the part of the widget gets.
  void watch(QWidget& part);

 private:
  bool keyPressed(QEvent* event);

  Control& control_;
  QPointer<QWidget> widget_;
  QString hint_;
  bool dirty_ = true;
};

/// The binding for the kind of the control and widget; null if the two do not fit together.
std::unique_ptr<Binding> bind(Control& control, QWidget& widget);

}  // namespace nautrel
