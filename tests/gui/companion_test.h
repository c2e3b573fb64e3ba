// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>

#include "companion/Companion.h"
#include "companion/ExchangeForm.h"
#include "exchange/exchange_test.h"
#include "gui/gui_test.h"

namespace nautrel {

/// The companion with its real look over the scripted desktop.
class CompanionTest : public ::testing::Test, protected AtTheScreen {
 protected:
  ~CompanionTest() override {
    app.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    looks.reset();
  }

  exchange::Book book;
  std::unique_ptr<ScriptedDesktop> desktop = std::make_unique<ScriptedDesktop>(book.folder.path());
  std::unique_ptr<exchange::Companion> app = started();
  exchange::ExchangeForm& form = app->window();

 private:
  std::unique_ptr<exchange::Companion> started() {
    auto made = std::make_unique<exchange::Companion>(*desktop);
    looks = std::make_unique<QtLooks>(*made);
    made->setLooks(looks.get());
    made->start();
    settle();
    return made;
  }
};

}  // namespace nautrel
