// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <fstream>
#include <span>
#include <string>

#include "exchange/format.h"

namespace nautrel::exchange {

/// A file to be imported, read from its start. Every operation raises Refused.
class InputFile {
 public:
  /// Refuses what is no file, an empty one and one of more than 256 MB.
  explicit InputFile(const std::string& path, Progress progress = {});

  /// The file as messages name it, in quotation marks.
  const std::string& name() const { return name_; }
  std::size_t size() const { return size_; }

  /// Fills the buffer or, at the end of the file, a part of it; how much is returned.
  std::size_t read(std::span<char> buffer);
  std::string readAll();

 private:
  std::string name_;
  std::size_t size_ = 0;
  std::size_t done_ = 0;
  Progress progress_;
  std::ifstream in_;
};

}  // namespace nautrel::exchange
