// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/text_file.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <iterator>

#include "platform/errors.h"
#include "platform/files.h"
#include "platform/text.h"

namespace nautrel {
namespace fs = std::filesystem;
namespace {

constexpr std::string_view kBlanks = "                                ";
}

TextFile::TextFile(const std::string& path) {
  const auto native = nativePath(path);
  std::error_code unknown;
  if (native.has_parent_path() && !fs::is_directory(native.parent_path(), unknown))
    raise(PathNotFound);
  out_.open(native, std::ios::binary | std::ios::trunc);
  if (!out_) raise(FileAccess);
}

TextFile::~TextFile() {
  flush();
}

/// The place of the next byte, with that many free from there on.
char* TextFile::room(std::size_t bytes) {
  if (bytes > block_.size() - used_) flush();
  if (bytes > block_.size()) block_.resize(bytes);
  return block_.data() + used_;
}

void TextFile::took(std::size_t bytes) {
  used_ += bytes;
  column_ += bytes;
}

void TextFile::print(std::string_view text) {
  took(writeCodePage(room(text.size()), text));
}

void TextFile::print(Tab tab) {
  if (column_ >= tab.column) endLine();
  const auto blanks = tab.column - 1 - column_;
  char* const place = room(std::max(blanks, kBlanks.size()));
  std::memcpy(place, kBlanks.data(), kBlanks.size());
  if (blanks > kBlanks.size()) std::fill_n(place, blanks, ' ');
  took(blanks);
}

void TextFile::endLine() {
  print("\r\n");
  column_ = 0;
}

void TextFile::flush() {
  out_.write(block_.data(), static_cast<std::streamsize>(used_));
  used_ = 0;
}

std::string readTextFile(const std::string& path) {
  std::ifstream in(nativePath(path), std::ios::binary);
  if (!in) raise(FileNotFound);
  return fromCodePage(std::string(std::istreambuf_iterator<char>(in), {}));
}

void deleteFile(const std::string& path) {
  std::error_code failed;
  const bool deleted = fs::remove(nativePath(path), failed);
  if (failed) raise(FileAccess);
  if (!deleted) raise(FileNotFound);
}

}  // namespace nautrel
