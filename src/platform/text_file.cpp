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

void TextFile::print(std::string_view text) {
  line_ += toCodePage(text);
}

void TextFile::print(Tab tab) {
  if (line_.size() >= tab.column) endLine();
  line_.resize(tab.column - 1, ' ');
}

void TextFile::endLine() {
  line_ += "\r\n";
  out_ << line_;
  line_.clear();
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
