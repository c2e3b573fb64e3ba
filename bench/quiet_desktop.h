// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "platform/desktop.h"

namespace nautrel::bench {

/// A desktop without anybody at it: every question is answered with Yes, every dialog cancelled.
class QuietDesktop : public Desktop {
 public:
  explicit QuietDesktop(std::string folder) : folder_(std::move(folder)) {}

 protected:
  int showMessage(const std::string&, int style, const std::string&) override {
    return style == 0 ? kOk : kYes;
  }
  std::string askText(const std::string&, const std::string&) override { return {}; }
  std::optional<std::string> askFileToOpen(const DialogRequest&) override { return {}; }
  std::optional<std::string> askFileToSave(const DialogRequest&) override { return {}; }
  std::optional<std::string> askFolder(const DialogRequest&) override { return {}; }
  std::optional<long> askColor(long) override { return {}; }
  bool askPrinter() override { return false; }
  std::string readSetting(const std::string&, const std::string&) override { return {}; }
  void writeSetting(const std::string&, const std::string&, const std::string&) override {}
  void runApart(const std::string&, const LongWork& work) override {
    work([](std::size_t, std::size_t) { return true; });
  }
  DateTime currentTime() override { return {}; }
  const Locale& currentLocale() override { return locale_; }
  Picture readPicture(const std::string&) override { return {}; }
  void run(const ReportJob&) override {}
  void open(const std::string&) override {}
  void copy(const Chart&) override {}
  void popup(Menu&, const Control*) override {}
  void print(const std::string&) override {}
  std::string executableFolder() override { return folder_; }
  std::string executableFile() override { return folder_ + "/nautrel"; }
  ScreenSize screenSize() override { return {}; }
  void endLoop(const std::optional<RunTimeError>&) override {}

 private:
  std::string folder_;
  Locale locale_;
};

}  // namespace nautrel::bench
