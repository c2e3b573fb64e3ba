#include "platform/desktop.h"

namespace nautrel {

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

std::optional<std::string> Desktop::saveFile(const DialogRequest& request) {
  openDoor(true);
  auto answer = askFileToSave(request);
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

std::string Desktop::GetSetting(const std::string& section, const std::string& key) {
  openDoor();
  return readSetting(section, key);
}

void Desktop::SaveSetting(const std::string& section, const std::string& key,
                          const std::string& value) {
  openDoor();
  writeSetting(section, key, value);
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

ScreenSize Desktop::screen() {
  openDoor();
  return screenSize();
}

void Desktop::end(const std::optional<RunTimeError>& failure) {
  if (ended_) return;
  ended_ = true;
  endLoop(failure);
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
