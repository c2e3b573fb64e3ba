#include "platform/text_file.h"

#include <filesystem>
#include <iterator>

#include "platform/errors.h"
#include "platform/files.h"
#include "platform/text.h"

namespace nautrel {
namespace fs = std::filesystem;

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

void TextFile::print(std::string_view text) {
  appendCodePage(bytes_, text);
}

void TextFile::print(Tab tab) {
  if (bytes_.size() - line_ >= tab.column) endLine();
  bytes_.resize(line_ + tab.column - 1, ' ');
}

void TextFile::endLine() {
  constexpr std::size_t kMuch = 64 << 10;
  bytes_ += "\r\n";
  line_ = bytes_.size();
  if (line_ > kMuch) flush();
}

void TextFile::flush() {
  out_.write(bytes_.data(), static_cast<std::streamsize>(bytes_.size()));
  bytes_.clear();
  line_ = 0;
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
