// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <vector>

#include "look/frame/keyboard.h"
#include "platform/look.h"

namespace nautrel {

class FormView;
class MainFrame;
class Program;

/// Makes the looks of the forms, and keeps screen and models in step.
class QtLooks : public QObject, public Looks {
 public:
  explicit QtLooks(Program& program);
  ~QtLooks() override;

  std::unique_ptr<FormLook> make(Form& form) override;
  void flush() override;
  void flushSoon();
  /// Repaints what is new, at most every 40 ms while a handler runs.
  void repaintIfDue();

  MainFrame* mainFrame() const { return frame_; }
  /// The main window, or the one that stands in its place; null if there is none.
  QWidget* topWindow() const;
  FormView* viewOf(const Form& form) const;
  /// The view whose window holds the widget.
  FormView* viewAround(const QWidget* widget) const;

  void add(FormView& view);
  void remove(FormView& view);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void focusMoved(QWidget* before, QWidget* now);
  void restyleSoon();
  FormView* frontView() const;

  Program& program_;
  Keyboard keyboard_;
  MainFrame* frame_ = nullptr;
  QPointer<QWidget> companion_;
  std::vector<FormView*> views_;
  QElapsedTimer sinceRepaint_;
  Qt::FocusReason focusReason_ = Qt::OtherFocusReason;
  bool flushing_ = false;
  bool waiting_ = false;
  bool restyling_ = false;
};

}  // namespace nautrel
