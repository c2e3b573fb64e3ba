// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "platform/draft_file.h"

namespace nautrel::exchange {

/// A file that comes into being whole or not at all: it is written under another name beside its
/// place and moves there with commit(); without that nothing stays behind. Every operation raises
/// Refused.
class OutputFile {
 public:
  /// Refuses a file of the program's own, a place that cannot be written, and a file that is there
  /// unless it may be replaced.
  OutputFile(const std::string& target, const std::vector<std::string>& ownFiles, bool overwrite);
  OutputFile(const OutputFile&) = delete;
  OutputFile& operator=(const OutputFile&) = delete;

  void write(std::string_view bytes);
  void commit();

 private:
  void refuseOverwriting() const;
  void flush();
  [[noreturn]] void refuseForLackOfRoom() const;

  std::string name_;
  std::filesystem::path target_;
  bool overwrite_;
  DraftFile draft_;
  std::ofstream out_;
  std::string waiting_;
};

}  // namespace nautrel::exchange
