// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/errors.h"
#include "platform/picture.h"
#include "platform/text.h"

namespace nautrel {

class Chart;
class Control;
class Menu;

inline constexpr const char* kApplicationTitle = "Nautrel";

/// Message box styles and answers, as the system counts them.
/// @{
inline constexpr int kAskYes = 36;        // Yes and No, question, Yes is the default
inline constexpr int kAskNo = 292;        // Yes and No, question, No is the default
inline constexpr int kAskCritical = 276;  // Yes and No, critical, No is the default
inline constexpr int kOk = 1;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;
/// @}

/// What a common dialog is opened with. `flags`: 2 asks before overwriting, 4 hides the read-only
/// box. `filter` is "text|pattern;pattern"; `ending`, as ".txt", is what a name to save to gets if
/// it has it not. One for `pictures` begins where the diver keeps his, any other at his documents.
struct DialogRequest {
  std::string title = {};
  std::string filter = {};
  std::string fileName = {};
  int flags = 0;
  std::string ending = {};
  bool pictures = false;
};

/// Told how far a long work is; false asks it to stop.
using Progress = std::function<bool(std::size_t done, std::size_t all)>;
using LongWork = std::function<void(const Progress&)>;

enum class ReportDestination { Preview = 0, Printer = 1 };

/// One run of a report template.
struct ReportJob {
  std::string templatePath = {};
  std::string selectionFormula = {};
  std::string windowTitle = {};
  ReportDestination destination = ReportDestination::Preview;
};

/// A screen's size in twips.
struct ScreenSize {
  double width = 0;
  double height = 0;
};

/// The one door to everything outside the windows. The public calls keep the rules that hold for
/// each of them: after the fatal end they raise ProgramEnd, and before a box opens the screen and
/// the file are brought up to date.
class Desktop {
 public:
  virtual ~Desktop() = default;

  /// Modal; returns the answer. A Yes/No box is left by an answer alone.
  int MsgBox(const std::string& prompt, int style = 0,
             const std::string& title = kApplicationTitle);
  /// Modal; cancelled, it gives the empty text.
  std::string InputBox(const std::string& prompt, const std::string& title);
  /// Modal; nothing if cancelled.
  std::optional<std::string> openFile(const DialogRequest& request);
  /// The final name, its ending included. A file of the program's own, and one that plainly cannot
  /// be written, is never among the answers: it is refused in a box, and the dialog comes again.
  std::optional<std::string> saveFile(DialogRequest request);
  /// A folder that is there; nothing if cancelled.
  std::optional<std::string> openFolder(const DialogRequest& request);
  std::optional<long> chooseColor(long color);
  bool setUpPrinter();
  /// A soft sound: what was typed finds no room.
  void beep();

  std::string GetSetting(const std::string& section, const std::string& key);
  void SaveSetting(const std::string& section, const std::string& key, const std::string& value);

  /// Modal: does something long, apart from the screen, which stays alive and tells in a box what
  /// is done and how far it is. `work` may be stopped there once it has asked its Progress; so it
  /// touches no window. Raises what `work` raises. False if it was stopped; what it raised then is
  /// passed over.
  bool runLong(const std::string& what, const LongWork& work);

  DateTime now();
  const Locale& locale() { return currentLocale(); }
  /// The empty path gives the empty picture. Raises 53 (no such file), 75 (may not be read) or 481
  /// (no picture).
  Picture LoadPicture(const std::string& path);
  void runReport(const ReportJob& job);
  /// Hands a document to the desktop's own opener; what comes of it is not told.
  void openDocument(const std::string& path);
  void copyChart(const Chart& chart);
  /// Pops up a context menu just below the control; without one, at the pointer. Returns when it
  /// has closed.
  void popupMenu(Menu& menu, const Control* above = nullptr);
  void printText(const std::string& text);
  /// The executable's folder, without a separator at its end.
  std::string applicationPath();
  /// The executable's own file.
  std::string executable();
  ScreenSize screen();

  /// Ends the program, with the run-time's message for a failure.
  void end(const std::optional<RunTimeError>& failure = {});
  bool ended() const { return ended_; }
  /// Runs what the event loop calls; whatever flies out of it goes no further and ends the program.
  template <class Action>
  void atEdge(Action&& action) {
    try {
      action();
    } catch (...) {
      endByFault();
    }
  }

  /// The files that no save dialog hands back, by any spelling or link, whether they exist or not.
  void setOwnFiles(const std::vector<std::string>& paths);

  /// Called before anything modal opens.
  std::function<void()> beforeBox;

 protected:
  virtual int showMessage(const std::string& prompt, int style, const std::string& title) = 0;
  virtual std::string askText(const std::string& prompt, const std::string& title) = 0;
  virtual std::optional<std::string> askFileToOpen(const DialogRequest& request) = 0;
  /// Asks nothing about overwriting; the door does so about the final name.
  virtual std::optional<std::string> askFileToSave(const DialogRequest& request) = 0;
  virtual std::optional<std::string> askFolder(const DialogRequest& request) = 0;
  virtual std::optional<long> askColor(long color) = 0;
  virtual bool askPrinter() = 0;
  virtual void ringBell() {}
  virtual std::string readSetting(const std::string& section, const std::string& key) = 0;
  virtual void writeSetting(const std::string& section, const std::string& key,
                            const std::string& value) = 0;
  /// `work` raises nothing, and is done when this returns.
  virtual void runApart(const std::string& what, const LongWork& work) = 0;
  virtual DateTime currentTime() = 0;
  virtual const Locale& currentLocale() = 0;
  virtual Picture readPicture(const std::string& path) = 0;
  virtual void run(const ReportJob& job) = 0;
  virtual void open(const std::string& path) = 0;
  virtual void copy(const Chart& chart) = 0;
  virtual void popup(Menu& menu, const Control* above) = 0;
  virtual void print(const std::string& text) = 0;
  virtual std::string executableFolder() = 0;
  virtual std::string executableFile() = 0;
  virtual ScreenSize screenSize() = 0;
  /// The program ends once the handlers on the way have returned.
  virtual void endLoop(const std::optional<RunTimeError>& failure) = 0;

 private:
  void openDoor(bool modal = false);
  void endByFault();
  bool accepts(const std::string& name, const DialogRequest& request);

  bool ended_ = false;
  std::vector<std::filesystem::path> ownFiles_;
};

/// A common dialog of a window: its design data and what it last brought back.
class CommonDialog {
 public:
  CommonDialog(Desktop& desktop, DialogRequest design)
      : request_(std::move(design)), desktop_(desktop) {}

  void setFlags(int flags) { request_.flags = flags; }
  const std::string& FileName() const { return request_.fileName; }
  long Color() const { return color_; }
  void setColor(long color) { color_ = color; }

  /// All of them raise 32755 when the user cancels; nothing of the dialog changes then.
  void ShowOpen();
  void ShowSave();
  void ShowColor();
  void ShowPrinter();

 private:
  DialogRequest request_;
  long color_ = 0;
  Desktop& desktop_;
};

}  // namespace nautrel
