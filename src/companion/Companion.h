// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "exchange/dated_name.h"
#include "platform/program.h"

namespace nautrel::exchange {

class ExchangeForm;

/// The companion as a program with one window.
class Companion : public Program {
 public:
  using Program::Program;
  ~Companion() override;

  /// Shows the window.
  void start();
  ExchangeForm& window();

  /// The logbook beside the executable, and the files that nothing replaces which is written.
  const std::string& logbook();
  std::vector<std::string> ownFiles();
  LocalTime now();

  /// Does something that may be refused or fail, and tells the user why in a box. False then.
  bool attempt(const std::function<void()>& action);
  /// attempt() to do something long; false too where the user stopped it.
  bool attemptLong(const std::string& what, const LongWork& work);

 private:
  std::string logbook_;
};

/// "1 dive", "2 dives".
std::string counted(int number, std::string_view what);
/// A path's last part.
std::string fileNameOf(const std::string& path);
/// Enables a control, or disables it and tells why.
void allow(Control& control, std::string whyNot);

}  // namespace nautrel::exchange
