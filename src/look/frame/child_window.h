// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QMdiSubWindow>
#include <QPointer>

#include "look/frame/form_view.h"

namespace nautrel {

class SubWindow;

/// A window inside the main window's frame. Its size is its design's, and fixed but for the one
/// whose design says otherwise.
class ChildWindow : public FormView {
 public:
  ChildWindow(QtLooks& looks, Form& form);
  ~ChildWindow() override;

  void show() override;
  void close() override;
  QWidget* root() const override;

 protected:
  void pushForm() override;
  void measure() override;

 private:
  void giveSize(const QSize& size);
  void pushState();

  const bool sizable_;
  QPointer<SubWindow> window_;
};

}  // namespace nautrel
