// SPDX-License-Identifier: GPL-2.0-or-later
#include "companion/Companion.h"

#include "companion/ExchangeForm.h"
#include "exchange/format.h"
#include "platform/files.h"
#include "store/contract.h"
#include "store/program_files.h"

namespace nautrel::exchange {
namespace {

constexpr int kWindow = 1;
constexpr int kExclamation = 48;

}  // namespace

Companion::~Companion() {
  destroyWindows();
}

void Companion::start() {
  handle([this] {
    desktop().setOwnFiles(ownFiles());
    window().Show();
  });
}

ExchangeForm& Companion::window() {
  return Program::window<ExchangeForm>(kWindow, *this);
}

const std::string& Companion::logbook() {
  if (logbook_.empty())
    logbook_ = utf8(nativePath(desktop().applicationPath()) / std::string(kLogbookFile));
  return logbook_;
}

std::vector<std::string> Companion::ownFiles() {
  auto files = programFiles(logbook());
  files.push_back(desktop().executable());
  return files;
}

LocalTime Companion::now() {
  using namespace std::chrono;
  const auto time = desktop().now();
  return local_days(year(time.year) / time.month / time.day) + hours(time.hour) +
         minutes(time.minute) + seconds(time.second);
}

bool Companion::attempt(const std::function<void()>& action) {
  std::string why;
  try {
    action();
    return true;
  } catch (const Refused& refused) {
    why = refused.text;
  } catch (...) {
    const auto failure = failureInFlight();
    if (!failure) throw;
    why = failure->text;
  }
  desktop().MsgBox(why, kExclamation);
  return false;
}

bool Companion::attemptLong(const std::string& what, const LongWork& work) {
  bool done = false;
  attempt([&] { done = desktop().runLong(what, work); });
  return done;
}

std::string counted(int number, std::string_view what) {
  return std::to_string(number) + " " + std::string(what) + (number == 1 ? "" : "s");
}

std::string fileNameOf(const std::string& path) {
  return utf8(nativePath(path).filename());
}

void allow(Control& control, std::string whyNot) {
  control.setEnabled(whyNot.empty());
  control.setHint(std::move(whyNot));
}

}  // namespace nautrel::exchange
