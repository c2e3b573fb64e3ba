// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPoint>
#include <QSettings>
#include <optional>

#include "look/pictures/pictures.h"
#include "look/reports/printing.h"
#include "platform/desktop.h"

class QFileDialog;

namespace nautrel {

class QtLooks;

/// The real desktop behind the door.
class QtDesktop : public Desktop {
 public:
  QtDesktop();
  void setLooks(QtLooks* looks) { looks_ = looks; }

  /// The failure that ended the program, to be shown after the loop.
  const std::optional<RunTimeError>& failure() const { return failure_; }

 protected:
  int showMessage(const std::string& prompt, int style, const std::string& title) override;
  std::string askText(const std::string& prompt, const std::string& title) override;
  std::optional<std::string> askFileToOpen(const DialogRequest& request) override;
  std::optional<std::string> askFileToSave(const DialogRequest& request) override;
  std::optional<std::string> askFolder(const DialogRequest& request) override;
  void runApart(const std::string& what, const LongWork& work) override;
  std::optional<long> askColor(long color) override;
  bool askPrinter() override;
  void ringBell() override;
  std::string readSetting(const std::string& section, const std::string& key) override;
  void writeSetting(const std::string& section, const std::string& key,
                    const std::string& value) override;
  DateTime currentTime() override;
  const Locale& currentLocale() override { return locale_; }
  Picture readPicture(const std::string& path) override;
  void run(const ReportJob& job) override;
  void open(const std::string& path) override;
  void copy(const Chart& chart) override;
  void popup(Menu& menu, const Control* above) override;
  void print(const std::string& text) override;
  std::string executableFolder() override;
  std::string executableFile() override;
  ScreenSize screenSize() override;
  void endLoop(const std::optional<RunTimeError>& failure) override;

 private:
  QWidget* parentWindow() const;
  QPoint popupPlace(const Control* above) const;
  QString startFolder(const DialogRequest& request);
  std::optional<std::string> chosenIn(QFileDialog& dialog, const DialogRequest& request);
  /// Runs a step of a report; its fault is told to the user and ends there.
  void telling(const std::function<void()>& step);

  QtLooks* looks_ = nullptr;
  Locale locale_;
  QSettings settings_;
  Pictures pictures_;
  PrinterSetUp printer_;
  std::optional<RunTimeError> failure_;
};

}  // namespace nautrel
