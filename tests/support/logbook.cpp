// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/logbook.h"

#include <atomic>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>

#include "shell/Form1.h"
#include "store/delivered.h"

namespace nautrel {
namespace fs = std::filesystem;

namespace {

void append(Recordset& rows, const Dive& row) {
  rows.AddNew();
  for (const auto& [name, value] : row) rows.setField(name, value);
  rows.Update();
}

}  // namespace

TemporaryFolder::TemporaryFolder() {
  static std::atomic<unsigned> count{std::random_device{}()};
  fs::path path;
  do {
    path = fs::temp_directory_path() / ("nautrel-test-" + std::to_string(count++));
  } while (!fs::create_directory(path));
  path_ = path.string();
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  fs::remove_all(path_, ignored);
}

std::string TemporaryFolder::file(const std::string& name) const {
  return (fs::path(path_) / name).string();
}

std::string TemporaryFolder::write(const std::string& name, const std::string& content) const {
  std::ofstream(file(name), std::ios::binary) << content;
  return file(name);
}

std::string readFile(const std::string& path) {
  std::ostringstream content;
  content << std::ifstream(path, std::ios::binary).rdbuf();
  return content.str();
}

Dive someDive(int number) {
  const auto text = std::to_string(number);
  return {{"Nr", text},   {"Land", "Land " + text}, {"Ort", "Ort " + text}, {"Platz", "P"},
          {"Tag", "05"},  {"Monat", "03"},          {"Jahr", "2001"},       {"Zeit", "40"},
          {"Tiefe", "60"}};
}

LogbookTest::LogbookTest() : desktop(std::make_unique<ScriptedDesktop>(folder.path())) {
  createDeliveredLogbook(folder.file("Logbuch.mdb"));
  app = std::make_unique<Nautrel>(*desktop);
}

LogbookTest::~LogbookTest() {
  app.reset();
}

void LogbookTest::start() {
  app->start();
  app->Form1().Timer1.userFires();
}

void LogbookTest::startAt(MenuItem MDIForm1::*command) {
  start();
  desktop->messages();
  click(app->MDIForm1().*command);
}

void LogbookTest::restart() {
  app.reset();
  const auto settings = desktop->settings;
  const auto places = desktop->places;
  desktop = std::make_unique<ScriptedDesktop>(folder.path());
  desktop->settings = settings;
  desktop->places = places;
  app = std::make_unique<Nautrel>(*desktop);
  start();
}

void LogbookTest::add(const Dive& dive, const std::string& table) {
  Workspace workspace;
  auto rows = workspace.OpenDatabase(folder.file("Logbuch.mdb")).OpenRecordset(table);
  append(rows, dive);
}

void LogbookTest::addDives(int first, int last) {
  Workspace workspace;
  auto rows = workspace.OpenDatabase(folder.file("Logbuch.mdb")).OpenRecordset("Logbuch");
  for (int number = first; number <= last; ++number) append(rows, someDive(number));
}

void LogbookTest::deleteElsewhere(const std::string& table, int row) {
  Workspace other;
  auto rows = other.OpenDatabase(folder.file("Logbuch.mdb")).OpenRecordset(table);
  rows.Move(row);
  rows.Delete();
}

std::vector<std::vector<std::string>> LogbookTest::rows(const std::string& table,
                                                        const Columns& columns) {
  const auto shown = [](const Value& value) -> std::string {
    if (value.isNull()) return "NULL";
    if (value == Value(true)) return "Yes";
    if (value == Value(false)) return "No";
    return value.text({});
  };
  Workspace workspace;
  auto recordset = workspace.OpenDatabase(folder.file("Logbuch.mdb")).OpenRecordset(table, columns);
  std::vector<std::vector<std::string>> all;
  for (; !recordset.Eof(); recordset.MoveNext()) {
    auto& row = all.emplace_back();
    for (const auto& name : columns) row.push_back(shown(recordset.Fields(name)));
  }
  return all;
}

std::vector<std::string> LogbookTest::column(const std::string& name) {
  std::vector<std::string> values;
  for (const auto& row : rows("Logbuch", {name})) values.push_back(row.front());
  return values;
}

}  // namespace nautrel
