// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/desktop.h"

#include <algorithm>
#include <exception>

#include "platform/files.h"

namespace nautrel {
namespace {

constexpr int kAskBeforeOverwriting = 2;
constexpr int kAskToOverwrite = 4 + 48 + 256;  // Yes and No, exclamation, No is the default

std::string withEnding(std::string name, const std::string& ending) {
  if (!lowerCase(name).ends_with(lowerCase(ending))) name += ending;
  return name;
}

}  // namespace

void Desktop::openDoor(bool modal) {
  if (ended_) throw ProgramEnd{};
  if (modal && beforeBox) beforeBox();
}

int Desktop::MsgBox(const std::string& prompt, int style, const std::string& title) {
  openDoor(true);
  const int answer = showMessage(prompt, style, title);
  openDoor();
  return answer;
}

std::string Desktop::InputBox(const std::string& prompt, const std::string& title) {
  openDoor(true);
  auto answer = askText(prompt, title);
  openDoor();
  return answer;
}

std::optional<std::string> Desktop::openFile(const DialogRequest& request) {
  openDoor(true);
  auto answer = askFileToOpen(request);
  openDoor();
  return answer;
}

std::optional<std::string> Desktop::saveFile(DialogRequest request) {
  for (;;) {
    openDoor(true);
    const auto answer = askFileToSave(request);
    openDoor();
    if (!answer) return {};
    auto name = withEnding(*answer, request.ending);
    if (accepts(name, request)) return name;
    request.fileName = std::move(name);
  }
}

bool Desktop::accepts(const std::string& name, const DialogRequest& request) {
  const auto file = nativePath(name);
  const auto isIt = [&](const auto& own) { return sameFile(file, own); };
  if (std::any_of(ownFiles_.begin(), ownFiles_.end(), isIt)) {
    MsgBox("'" + name + "' belongs to Nautrel itself. Please choose another name.");
    return false;
  }
  if (!canBeWritten(file)) {
    MsgBox("'" + name + "' cannot be written. Please choose another name.");
    return false;
  }
  std::error_code unknown;
  const bool asks = (request.flags & kAskBeforeOverwriting) != 0;
  return !asks || !std::filesystem::exists(file, unknown) ||
         MsgBox("'" + name + "' already exists. Do you want to replace it?", kAskToOverwrite,
                request.title) == kYes;
}

void Desktop::setOwnFiles(const std::vector<std::string>& paths) {
  ownFiles_.clear();
  for (const auto& path : paths) ownFiles_.push_back(nativePath(path));
}

std::optional<std::string> Desktop::openFolder(const DialogRequest& request) {
  openDoor(true);
  auto answer = askFolder(request);
  openDoor();
  return answer;
}

std::optional<long> Desktop::chooseColor(long color) {
  openDoor(true);
  const auto answer = askColor(color);
  openDoor();
  return answer;
}

bool Desktop::setUpPrinter() {
  openDoor(true);
  const bool answer = askPrinter();
  openDoor();
  return answer;
}

void Desktop::beep() {
  openDoor();
  ringBell();
}

std::string Desktop::GetSetting(const std::string& section, const std::string& key) {
  openDoor();
  return readSetting(section, key);
}

void Desktop::SaveSetting(const std::string& section, const std::string& key,
                          const std::string& value) {
  openDoor();
  writeSetting(section, key, value);
}

bool Desktop::runLong(const std::string& what, const LongWork& work) {
  openDoor(true);
  bool stopped = false;
  std::exception_ptr failure;
  runApart(what, [&](const Progress& progress) {
    const auto watched = [&](std::size_t done, std::size_t all) {
      if (!progress(done, all)) stopped = true;
      return !stopped;
    };
    try {
      work(watched);
    } catch (...) {
      failure = std::current_exception();
    }
  });
  openDoor();
  if (failure && !stopped) std::rethrow_exception(failure);
  return !stopped;
}

DateTime Desktop::now() {
  openDoor();
  return currentTime();
}

Picture Desktop::LoadPicture(const std::string& path) {
  openDoor();
  return path.empty() ? Picture{} : readPicture(path);
}

void Desktop::runReport(const ReportJob& job) {
  openDoor(true);
  run(job);
  openDoor();
}

void Desktop::openDocument(const std::string& path) {
  openDoor();
  open(path);
}

void Desktop::copyChart(const Chart& chart) {
  openDoor();
  copy(chart);
}

void Desktop::popupMenu(Menu& menu, const Control* above) {
  openDoor(true);
  popup(menu, above);
  openDoor();
}

void Desktop::printText(const std::string& text) {
  openDoor();
  print(text);
}

std::string Desktop::applicationPath() {
  openDoor();
  return executableFolder();
}

std::string Desktop::executable() {
  openDoor();
  return executableFile();
}

ScreenSize Desktop::screen() {
  openDoor();
  return screenSize();
}

void Desktop::end(const std::optional<RunTimeError>& failure) {
  if (ended_) return;
  ended_ = true;
  endLoop(failure);
}

void Desktop::endByFault() {
  if (const auto failure = failureInFlight()) end(failure);
}

void CommonDialog::ShowOpen() {
  const auto file = desktop_.openFile(request_);
  if (!file) raise(DialogCancelled);
  request_.fileName = *file;
}

void CommonDialog::ShowSave() {
  const auto file = desktop_.saveFile(request_);
  if (!file) raise(DialogCancelled);
  request_.fileName = *file;
}

void CommonDialog::ShowColor() {
  const auto color = desktop_.chooseColor(color_);
  if (!color) raise(DialogCancelled);
  color_ = *color;
}

void CommonDialog::ShowPrinter() {
  if (!desktop_.setUpPrinter()) raise(DialogCancelled);
}

}  // namespace nautrel
