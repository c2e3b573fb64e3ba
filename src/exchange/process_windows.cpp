// SPDX-License-Identifier: GPL-2.0-or-later
#include <windows.h>

#include <shellapi.h>

#include <array>

#include "exchange/process.h"
#include "exchange/side_files.h"

namespace nautrel::exchange {
namespace {

std::string sign(LCTYPE which, const char* otherwise) {
  std::array<wchar_t, 16> text{};
  const int size = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, which, text.data(), text.size());
  return size > 1 ? utf8(std::filesystem::path(text.data())) : otherwise;
}

}  // namespace

std::vector<std::string> programArguments(int, char**) {
  SetConsoleOutputCP(CP_UTF8);
  int count = 0;
  std::vector<std::string> arguments;
  wchar_t** all = CommandLineToArgvW(GetCommandLineW(), &count);
  for (int place = 1; place < count; ++place)
    arguments.push_back(utf8(std::filesystem::path(all[place])));
  LocalFree(all);
  return arguments;
}

std::string programFolder() {
  std::wstring path(MAX_PATH, L'\0');
  DWORD size = 0;
  while ((size = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()))) ==
         path.size())
    path.resize(path.size() * 2);
  path.resize(size);
  return utf8(std::filesystem::path(path).parent_path());
}

Locale systemLocale() {
  return {.decimal = sign(LOCALE_SDECIMAL, "."), .grouping = sign(LOCALE_STHOUSAND, ",")};
}

bool hasDisplay() {
  return true;
}

bool startWindowProgram() {
  const auto program = (nativePath(programFolder()) / "nautrel-exchange-window.exe").wstring();
  auto line = L"\"" + program + L"\"";
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                      &start, &process))
    return false;
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return true;
}

}  // namespace nautrel::exchange
