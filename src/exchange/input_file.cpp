// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/input_file.h"

#include <algorithm>
#include <filesystem>
#include <utility>

#include "platform/files.h"

namespace nautrel::exchange {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kMostBytes = 256U << 20;

}  // namespace

InputFile::InputFile(const std::string& path, Progress progress)
    : name_("'" + path + "'"), progress_(std::move(progress)) {
  const auto file = nativePath(path);
  std::error_code failed;
  const auto status = fs::status(file, failed);
  if (!fs::exists(status)) throw Refused{name_ + " is not there."};
  if (!fs::is_regular_file(status)) throw Refused{name_ + " is no file that can be read."};
  const auto size = fs::file_size(file, failed);
  if (size > kMostBytes) throw Refused{name_ + " is larger than 256 MB."};
  if (size == 0) throw Refused{name_ + " is empty."};
  size_ = static_cast<std::size_t>(size);
  in_.open(file, std::ios::binary);
  if (!in_) throw Refused{name_ + " cannot be opened."};
}

std::size_t InputFile::read(std::span<char> buffer) {
  if (progress_ && !progress_(std::min(done_, size_), size_))
    throw Refused{"Reading " + name_ + " was cancelled."};
  in_.read(buffer.data(), static_cast<std::streamsize>(buffer.size()));
  if (in_.bad()) throw Refused{name_ + " cannot be read."};
  const auto count = static_cast<std::size_t>(in_.gcount());
  done_ += count;
  // It may have grown since it was looked at.
  if (done_ > kMostBytes) throw Refused{name_ + " is larger than 256 MB."};
  return count;
}

std::string InputFile::readAll() {
  std::string text;
  for (std::size_t more = size_ + 1;; more = text.size()) {
    const auto start = text.size();
    text.resize(start + more);
    const auto count = read(std::span(text).subspan(start));
    text.resize(start + count);
    if (count < more) return text;
  }
}

}  // namespace nautrel::exchange
