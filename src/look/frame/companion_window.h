// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPointer>
#include <QWidget>

#include "look/frame/form_view.h"

namespace nautrel {

namespace exchange {
class ExchangeForm;
}

/// The companion's only window: it stands by itself on the desktop, and files may be dropped on it.
class CompanionWindow : public FormView {
 public:
  CompanionWindow(QtLooks& looks, exchange::ExchangeForm& form);
  ~CompanionWindow() override;

  void show() override;
  void close() override;
  QWidget* root() const override;

 protected:
  void pushForm() override;

 private:
  void prepareScrolling();
  void makeKeys(exchange::ExchangeForm& form);

  QPointer<QWidget> window_;
};

}  // namespace nautrel
