// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <memory>
#include <string>

#include "companion/Companion.h"
#include "companion/ExchangeForm.h"
#include "exchange/exchange_test.h"
#include "support/scripted_desktop.h"
#include "support/user.h"

namespace nautrel::exchange {

/// The companion's window over a delivered folder of its own.
class WindowTest : public ::testing::Test {
 protected:
  WindowTest() { app.start(); }

  void addDives(int count) {
    for (int number = 1; number <= count; ++number)
      book.add(plainDive(std::to_string(number), std::to_string(40 + number)));
    book.workspace.settle();
    form.Care.load();
  }
  /// Chooses a file of that name and content.
  void choose(const std::string& name, const std::string& content) {
    desktop.answerFile(book.folder.write(name, content));
    click(form.In.ChooseFile);
  }
  /// What the preview says becomes of the dives, ticked ones with a "+".
  std::vector<std::string> fates() {
    std::vector<std::string> all;
    for (int row = 0; row < form.In.Dives.rowCount(); ++row) {
      const auto shown = form.In.Dives.row(row);
      all.push_back((shown.ticked ? "+" : "") + shown.cells.back());
    }
    return all;
  }
  std::vector<std::string> numbers() {
    std::vector<std::string> all;
    for (const auto& dive : book.dives()) all.emplace_back(dive.text(Feld::Nr));
    return all;
  }

  Book book;
  ScriptedDesktop desktop{book.folder.path()};
  Companion app{desktop};
  ExchangeForm& form = app.window();
};

}  // namespace nautrel::exchange
