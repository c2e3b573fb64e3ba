// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/output_file.h"

#include <algorithm>
#include <system_error>

#include "exchange/format.h"
#include "platform/files.h"

namespace nautrel::exchange {
namespace fs = std::filesystem;
namespace {

constexpr std::size_t kMuch = 256 << 10;

std::string asText(const fs::path& path) {
  const auto text = path.u8string();
  return std::string(text.begin(), text.end());
}

}  // namespace

OutputFile::OutputFile(const std::string& target, const std::vector<std::string>& ownFiles,
                       bool overwrite)
    : name_("'" + target + "'"),
      target_(followLinks(nativePath(target))),
      overwrite_(overwrite),
      draft_(asText(target_)) {
  const auto isIt = [&](const std::string& own) { return sameFile(target_, nativePath(own)); };
  if (std::any_of(ownFiles.begin(), ownFiles.end(), isIt))
    throw Refused{name_ + " belongs to Nautrel itself. Please choose another name."};
  refuseOverwriting();
  if (canBeWritten(target_))
    out_.open(nativePath(draft_.path()), std::ios::binary | std::ios::trunc);
  if (!out_.is_open()) throw Refused{name_ + " cannot be written."};
}

void OutputFile::refuseOverwriting() const {
  std::error_code unknown;
  const auto status = fs::status(target_, unknown);
  if (!fs::exists(status)) return;
  if (!fs::is_regular_file(status)) throw Refused{name_ + " is no file that can be replaced."};
  if (!overwrite_) throw Refused{name_ + " is there already."};
}

void OutputFile::write(std::string_view bytes) {
  waiting_ += bytes;
  if (waiting_.size() >= kMuch) flush();
}

void OutputFile::flush() {
  out_.write(waiting_.data(), static_cast<std::streamsize>(waiting_.size()));
  waiting_.clear();
  if (!out_) refuseForLackOfRoom();
}

void OutputFile::refuseForLackOfRoom() const {
  throw Refused{name_ + " could not be written to its end. Is the disk full?"};
}

void OutputFile::commit() {
  flush();
  out_.close();
  if (!out_) refuseForLackOfRoom();
  refuseOverwriting();
  std::error_code failed;
  fs::rename(nativePath(draft_.path()), target_, failed);
  if (failed) throw Refused{name_ + " cannot be written."};
}

}  // namespace nautrel::exchange
