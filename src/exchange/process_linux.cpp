// SPDX-License-Identifier: GPL-2.0-or-later
#include <clocale>
#include <cstdlib>
#include <filesystem>

#include "exchange/plain_text.h"
#include "exchange/process.h"

namespace nautrel::exchange {
namespace {

std::string utf8Sign(const char* sign) {
  return isUtf8(sign) ? sign : fromCodePage(sign);
}

}  // namespace

std::vector<std::string> programArguments(int count, char** arguments) {
  return {arguments + (count > 0 ? 1 : 0), arguments + count};
}

std::string programFolder() {
  return std::filesystem::read_symlink("/proc/self/exe").parent_path().string();
}

Locale systemLocale() {
  Locale locale;
  if (std::setlocale(LC_NUMERIC, "") == nullptr) return locale;
  const std::lconv* signs = std::localeconv();
  locale.decimal = utf8Sign(signs->decimal_point);
  locale.grouping = utf8Sign(signs->thousands_sep);
  if (locale.grouping.empty()) locale.grouping = locale.decimal == "." ? "," : ".";
  std::setlocale(LC_NUMERIC, "C");
  return locale;
}

bool hasDisplay() {
  for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
    if (const char* value = std::getenv(name); value != nullptr && *value != '\0') return true;
  return false;
}

bool startWindowProgram() {
  return false;
}

}  // namespace nautrel::exchange
