// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "look/bindings/binding.h"
#include "platform/controls.h"

namespace nautrel {

/// A box of one line.
class LineEditBinding : public Binding {
 public:
  LineEditBinding(TextBox& box, QLineEdit& edit);
  void restyle() override;

 protected:
  bool filter(QEvent* event) override;
  void pushContent() override;

 private:
  void edited(const QString& text);
  void showSelection();
  void tellSelection();
  void arrive(Qt::FocusReason reason);
  bool selectedOnArrival(QEvent* event);

  TextBox& box_;
  QLineEdit& edit_;
  unsigned stamp_ = 0;
  bool headShown_ = false;
  unsigned stampOnArrival_ = 0;
  bool arrivingByMouse_ = false;
  bool pressing_ = false;
};

/// A box of several lines.
class PlainTextBinding : public Binding {
 public:
  PlainTextBinding(TextBox& box, QPlainTextEdit& edit);
  void restyle() override;

 protected:
  bool filter(QEvent* event) override;
  void pushContent() override;

 private:
  void edited();
  /// The text as the widget's document holds it.
  QString shown() const;
  void tellSelection();

  TextBox& box_;
  QPlainTextEdit& edit_;
};

}  // namespace nautrel
