// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "companion/GiveOutPage.h"
#include "companion/LookAfterPage.h"
#include "companion/TakeOverPage.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace nautrel::exchange {

class Companion;

/// "Exchange dives": dives in, dives out, and what keeps a logbook sound, a page each. It is the
/// companion's only window.
class ExchangeForm : public Form {
 public:
  explicit ExchangeForm(Companion& app);

  void Form_Load() override;
  void Pages_Click();
  /// Asks before dives that were looked at and not taken are forgotten.
  void Close_Click();
  /// The user has dropped a file on the window, on whatever page: its dives are to be taken over.
  void userDrop(const std::string& path);
  /// The frame's own way of closing.
  void userLeave();

  TabStrip Pages{
      *this, "Pages", {"&Take over dives", "&Give dives out", "&Look after the logbook"}};
  TakeOverPage In;
  GiveOutPage Out;
  LookAfterPage Care;
  Label Place{*this, "Place"};
  Button Close{*this, "Close", "&Close"};

 private:
  Companion& app_;
};

}  // namespace nautrel::exchange
