// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/scripted_desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <ostream>

#include "platform/frame.h"

namespace nautrel {

std::ostream& operator<<(std::ostream& out, const Shown& shown) {
  return out << '"' << shown.text << "\" (" << shown.style << ", " << shown.title << ')';
}

std::string pathOf(const Picture& picture) {
  const auto* scripted = dynamic_cast<const ScriptedPicture*>(picture.get());
  return scripted == nullptr ? std::string{} : scripted->path;
}

ScriptedDesktop::ScriptedDesktop(std::string folder) : folder_(std::move(folder)) {}

ScriptedDesktop::~ScriptedDesktop() {
  EXPECT_TRUE(buttons_.empty() && inputs_.empty() && files_.empty() && colors_.empty() &&
              printers_.empty() && menuItems_.empty())
      << "an answer was left over";
  if (failure_ && !failureRead_)
    ADD_FAILURE() << "the program ended: " << failure_->number << ' ' << failure_->text;
}

ScriptedDesktop& ScriptedDesktop::answer(int button) {
  buttons_.push_back(button);
  return *this;
}
ScriptedDesktop& ScriptedDesktop::answerInput(std::string text) {
  inputs_.push_back(std::move(text));
  return *this;
}
ScriptedDesktop& ScriptedDesktop::answerFile(std::optional<std::string> path) {
  files_.push_back(std::move(path));
  return *this;
}
ScriptedDesktop& ScriptedDesktop::answerColor(std::optional<long> color) {
  colors_.push_back(color);
  return *this;
}
ScriptedDesktop& ScriptedDesktop::answerPrinter(bool accepted) {
  printers_.push_back(accepted);
  return *this;
}
ScriptedDesktop& ScriptedDesktop::answerMenu(std::string item) {
  menuItems_.push_back(std::move(item));
  return *this;
}

std::vector<Shown> ScriptedDesktop::messages() {
  return std::exchange(shown_, {});
}

std::vector<std::string> ScriptedDesktop::texts() {
  std::vector<std::string> texts;
  for (const auto& shown : messages()) texts.push_back(shown.text);
  return texts;
}

const std::optional<RunTimeError>& ScriptedDesktop::failure() {
  failureRead_ = true;
  return failure_;
}

template <class Answer>
Answer ScriptedDesktop::next(std::deque<Answer>& answers, const std::string& question,
                             const std::vector<Answer>& byChance) {
  boxIsOpen();
  if (answers.empty()) {
    if (dice) return byChance[static_cast<std::size_t>(dice(static_cast<int>(byChance.size())))];
    ADD_FAILURE() << "no answer was laid out for: " << question;
    return byChance.front();
  }
  auto answer = std::move(answers.front());
  answers.pop_front();
  return answer;
}

void ScriptedDesktop::boxIsOpen() {
  if (whileBoxIsOpen) whileBoxIsOpen();
}

int ScriptedDesktop::showMessage(const std::string& prompt, int style, const std::string& title) {
  shown_.push_back({prompt, style, title});
  if ((style & 0x0F) != 0) return next(buttons_, prompt, {kNo, kYes});
  boxIsOpen();
  return kOk;
}

std::string ScriptedDesktop::askText(const std::string& prompt, const std::string& title) {
  inputPrompts.push_back(title + ": " + prompt);
  return next(inputs_, prompt, {"", "1", "2", "9999", "0", "x"});
}

std::optional<std::string> ScriptedDesktop::askFileToOpen(const DialogRequest& request) {
  dialogs.push_back(request);
  return next(files_, request.title, {{}, folder_ + "/file"});
}

std::optional<std::string> ScriptedDesktop::askFileToSave(const DialogRequest& request) {
  dialogs.push_back(request);
  return next(files_, request.title, {{}, folder_ + "/file"});
}

std::optional<std::string> ScriptedDesktop::askFolder(const DialogRequest& request) {
  dialogs.push_back(request);
  return next(files_, request.title, {{}, folder_});
}

void ScriptedDesktop::runApart(const std::string& what, const LongWork& work) {
  works.push_back(what);
  boxIsOpen();
  work(working ? working : [](std::size_t, std::size_t) { return true; });
}

std::optional<long> ScriptedDesktop::askColor(long) {
  return next(colors_, "a colour", {{}, 0xFF, 0x800000});
}

bool ScriptedDesktop::askPrinter() {
  return next(printers_, "the printer", {false, true});
}

std::string ScriptedDesktop::readSetting(const std::string& section, const std::string& key) {
  const auto it = settings.find({section, key});
  return it == settings.end() ? std::string{} : it->second;
}

void ScriptedDesktop::writeSetting(const std::string& section, const std::string& key,
                                   const std::string& value) {
  settings[{section, key}] = value;
}

// A file that begins with "picture" stands for a picture; every other one is rubbish.
Picture ScriptedDesktop::readPicture(const std::string& path) {
  std::ifstream file(path);
  if (!file) raise(FileNotFound);
  std::string word;
  file >> word;
  if (word != "picture") raise(InvalidPicture);
  return std::make_shared<ScriptedPicture>(path);
}

void ScriptedDesktop::popup(Menu& menu, const Control* above) {
  popups.push_back(above == nullptr ? std::string{} : above->name());
  std::vector<std::string> names{{}};
  for (const auto* item : menu.items())
    if (item != nullptr) names.push_back(item->name());
  const auto chosen = next(menuItems_, menu.caption(), names);
  for (auto* item : menu.items())
    if (item != nullptr && item->name() == chosen) return item->userClick();
  EXPECT_TRUE(chosen.empty()) << menu.caption() << " has no item " << chosen;
}

Locale commaLocale() {
  return {",", ".", "dd.MM.yyyy", "HH:mm:ss"};
}

std::string withComma(std::string text) {
  std::replace(text.begin(), text.end(), '.', ',');
  return text;
}

}  // namespace nautrel
