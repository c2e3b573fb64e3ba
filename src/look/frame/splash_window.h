// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>
#include <QPointer>

#include "look/frame/form_view.h"

namespace nautrel {

/// The splash: a picture without a frame.
class SplashWindow : public FormView {
 public:
  SplashWindow(QtLooks& looks, Form& form);
  ~SplashWindow() override;

  void show() override;
  void close() override;
  QWidget* root() const override;

 protected:
  void pushForm() override;

 private:
  QPointer<QLabel> picture_;
};

}  // namespace nautrel
