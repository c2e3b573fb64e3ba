// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <deque>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/desktop.h"

namespace nautrel {

/// A message as it was shown.
struct Shown {
  std::string text;
  int style = 0;
  std::string title = kApplicationTitle;
  friend bool operator==(const Shown&, const Shown&) = default;
};
std::ostream& operator<<(std::ostream& out, const Shown& shown);

/// A picture of the scripted desktop; it knows what it was loaded from.
class ScriptedPicture : public PictureData {
 public:
  explicit ScriptedPicture(std::string file) : path(std::move(file)) {}
  const std::string path;
};
/// The path a picture was loaded from; empty for the empty picture.
std::string pathOf(const Picture& picture);

/// A desktop that answers as laid out beforehand. A question without an answer, or an answer left
/// over at its end, fails the running test.
class ScriptedDesktop : public Desktop {
 public:
  explicit ScriptedDesktop(std::string folder);
  ~ScriptedDesktop() override;

  /// The answers to come, each for the next question, input box or dialog of its kind. A dialog
  /// without a value is cancelled.
  /// @{
  ScriptedDesktop& answer(int button);
  ScriptedDesktop& answerInput(std::string text);
  ScriptedDesktop& answerFile(std::optional<std::string> path);
  ScriptedDesktop& answerColor(std::optional<long> color);
  ScriptedDesktop& answerPrinter(bool accepted);
  /// The item of the next context menu that is chosen, by its name.
  ScriptedDesktop& answerMenu(std::string item);
  /// @}

  /// What was shown since the last call.
  std::vector<Shown> messages();
  /// Texts alone, for where nothing but them matters.
  std::vector<std::string> texts();
  std::vector<DialogRequest> dialogs;
  std::vector<ReportJob> reports;
  std::vector<std::string> opened;
  std::vector<std::string> printed;
  std::vector<std::string> popups;  // the control that each context menu dropped from, by its name
  std::vector<std::string> inputPrompts;  // "title: prompt"
  int charts = 0;
  std::vector<std::string> works;  // what was done as long work
  /// What the long work to come is told; without it, to go on.
  Progress working;
  int beeps = 0;
  /// Called while a box is open, that of long work included.
  std::function<void()> whileBoxIsOpen;
  /// A number below the given one. With it, whatever no answer is laid out for is answered by
  /// chance.
  std::function<int(int)> dice;

  std::map<std::pair<std::string, std::string>, std::string> settings;
  DateTime time{2001, 3, 5, 14, 7, 9};
  Locale places;
  ScreenSize size{1280 * 15, 1024 * 15};
  /// The failure that ended the program. Reading it takes note of it; one that nobody reads fails
  /// the test.
  const std::optional<RunTimeError>& failure();
  std::string folder() const { return folder_; }

 protected:
  int showMessage(const std::string& prompt, int style, const std::string& title) override;
  std::string askText(const std::string& prompt, const std::string& title) override;
  std::optional<std::string> askFileToOpen(const DialogRequest& request) override;
  std::optional<std::string> askFileToSave(const DialogRequest& request) override;
  std::optional<std::string> askFolder(const DialogRequest& request) override;
  void runApart(const std::string& what, const LongWork& work) override;
  std::optional<long> askColor(long color) override;
  bool askPrinter() override;
  void ringBell() override { ++beeps; }
  std::string readSetting(const std::string& section, const std::string& key) override;
  void writeSetting(const std::string& section, const std::string& key,
                    const std::string& value) override;
  DateTime currentTime() override { return time; }
  const Locale& currentLocale() override { return places; }
  Picture readPicture(const std::string& path) override;
  void run(const ReportJob& job) override { reports.push_back(job); }
  void open(const std::string& path) override { opened.push_back(path); }
  void copy(const Chart&) override { ++charts; }
  void popup(Menu& menu, const Control* above) override;
  void print(const std::string& text) override { printed.push_back(text); }
  std::string executableFolder() override { return folder_; }
  std::string executableFile() override { return folder_ + "/nautrel"; }
  ScreenSize screenSize() override { return size; }
  void endLoop(const std::optional<RunTimeError>& failure) override { failure_ = failure; }

 private:
  template <class Answer>
  Answer next(std::deque<Answer>& answers, const std::string& question,
              const std::vector<Answer>& byChance);
  void boxIsOpen();

  std::string folder_;
  std::deque<int> buttons_;
  std::deque<std::string> inputs_;
  std::deque<std::optional<std::string>> files_;
  std::deque<std::optional<long>> colors_;
  std::deque<bool> printers_;
  std::deque<std::string> menuItems_;
  std::vector<Shown> shown_;
  std::optional<RunTimeError> failure_;
  bool failureRead_ = false;
};

/// The locale of a system that writes 1.234,5 and 05.03.2001 14:07:09.
Locale commaLocale();
/// Texts of point numbers as that system writes them.
std::string withComma(std::string text);

}  // namespace nautrel
