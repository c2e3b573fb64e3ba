// SPDX-License-Identifier: GPL-2.0-or-later
#include <ctime>
#include <iostream>

#include "exchange/command.h"
#include "exchange/process.h"
#ifdef NAUTREL_WINDOW
#include "look/application.h"
#endif

namespace {

nautrel::exchange::LocalTime localTime() {
  using namespace std::chrono;
  const std::time_t now = std::time(nullptr);
  const std::tm clock = *std::localtime(&now);
  return local_days(year(clock.tm_year + 1900) / (clock.tm_mon + 1) / clock.tm_mday) +
         hours(clock.tm_hour) + minutes(clock.tm_min) + seconds(clock.tm_sec);
}

/// Numbers are stored as the program itself writes them.
nautrel::Locale locale() {
#ifdef NAUTREL_WINDOW
  return nautrel::localeOfPrograms();
#else
  return nautrel::exchange::systemLocale();
#endif
}

}  // namespace

int main(int count, char** arguments) {
  using namespace nautrel::exchange;
  const auto words = programArguments(count, arguments);
#ifdef NAUTREL_WINDOW
  if (words.empty() && hasDisplay()) return nautrel::runCompanion(count, arguments);
#endif
  if (words.empty() && startWindowProgram()) return kDone;
  return runCommand(words, {programFolder(), locale(), localTime()}, std::cout, std::cerr);
}
