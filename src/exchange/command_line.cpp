// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/command_line.h"

#include <CLI/CLI.hpp>
#include <limits>

#include "exchange/command.h"

namespace nautrel::exchange {
namespace {

constexpr int kMost = std::numeric_limits<int>::max();

/// Options that take one of a few words.
template <class Meaning>
void addChoice(CLI::App& command, const std::string& name, std::optional<Meaning>& chosen,
               const std::map<std::string, Meaning>& words, const std::string& help) {
  std::vector<std::string> all;
  for (const auto& [word, meaning] : words) all.push_back(word);
  command
      .add_option_function<std::string>(
          name, [&chosen, words](const std::string& word) { chosen = words.at(word); }, help)
      ->check(CLI::IsMember(all))
      ->option_text(CLI::detail::join(all, "|"));
}

void addFormat(CLI::App& command, Request& request) {
  addChoice<Format>(command, "--format", request.format,
                    {{"uddf", Format::Uddf}, {"csv", Format::Csv}},
                    "where the file's ending does not tell it");
}

void addImport(CLI::App& app, Request& request) {
  auto& command = *app.add_subcommand("import", "Take the dives of a file into the logbook");
  command.add_option("FILE", request.file, "UDDF or CSV")->required();
  command.add_flag("--dry-run", request.dryRun, "Tell what would be done, and do nothing");
  addChoice<DateOrder>(command, "--dates", request.answers.dates,
                       {{"dmy", DateOrder::DayFirst}, {"mdy", DateOrder::MonthFirst}},
                       "what comes first in a date, where the file leaves it open");
  addChoice<DurationForm>(
      command, "--durations", request.answers.durations,
      {{"m:s", DurationForm::MinutesSeconds}, {"h:m", DurationForm::HoursMinutes}},
      "what 0:45 means, likewise");
  addChoice<UnitSystem>(command, "--units", request.answers.units,
                        {{"metric", UnitSystem::Metric}, {"imperial", UnitSystem::Imperial}},
                        "of numbers without a unit, likewise");
  command.add_option("--insist", request.insist, "Take the dive of this line, duplicate or not")
      ->option_text("LINE")
      ->allow_extra_args(false)
      ->check(CLI::Range(1, kMost));
  command.add_flag("--card", request.card, "Take the diver's card too, if yours is empty");
  addFormat(command, request);
}

void addExport(CLI::App& app, Request& request) {
  auto& command = *app.add_subcommand("export", "Write the dives of the logbook to a file");
  command.add_option("FILE", request.file, "UDDF or CSV")->required();
  for (const auto& [name, number] : {std::pair{"--from", &request.from}, {"--to", &request.to}})
    command.add_option(name, *number, "only dives with numbers " + std::string(name + 2) + " N")
        ->option_text("N")
        ->check(CLI::Range(1, kMost));
  command.add_flag("--without-card", request.withoutCard, "Leave the diver's card out");
  command.add_flag("--without-equipment", request.withoutEquipment, "Leave the equipment out");
  command.add_flag("--force", request.force, "Replace a file that is there");
  addFormat(command, request);
}

void addOthers(CLI::App& app, Request& request) {
  app.add_subcommand("check", "Tell what is wrong with the logbook");
  auto& backup = *app.add_subcommand("backup", "Copy the logbook into a folder, under the date");
  backup.add_option("FOLDER", request.file)->required();
  backup.add_option("--keep", request.keep, "Delete all earlier backups there but the last")
      ->option_text("N")
      ->check(CLI::Range(1, kMost));
  auto& restore = *app.add_subcommand("restore", "Put a copy in the place of the logbook");
  restore.add_option("FILE", request.file)->required();
}

void addCommands(CLI::App& app, Request& request) {
  app.require_subcommand(1);
  app.fallthrough();
  app.add_flag("--json", request.json, "Write the report for programs");
  addImport(app, request);
  addExport(app, request);
  addOthers(app, request);
  app.footer(
      "The logbook is Logbuch.mdb beside this program. The status is 0 if it is done, 1 if it is\n"
      "refused or a check has found something, 2 for a wrong use.");
}

void requireSense(Request& request) {
  if (request.from && request.to && *request.from > *request.to)
    throw CLI::ValidationError("--from is behind --to");
  if (request.command == "export" && !request.format) request.format = formatOf(request.file);
  if (request.command == "export" && !request.format)
    throw CLI::ValidationError("'" + request.file +
                               "' does not tell its format; --format uddf or csv does");
}

}  // namespace

std::variant<Request, int> readCommandLine(const std::vector<std::string>& arguments,
                                           std::ostream& out, std::ostream& err) {
  Request request;
  CLI::App app("Brings dives into the logbook of Nautrel and out of it, and looks after it.",
               "nautrel-exchange");
  addCommands(app, request);
  if (arguments.empty()) {
    err << app.help();
    return kWrongUse;
  }
  try {
    app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
    request.command = app.get_subcommands().front()->get_name();
    requireSense(request);
  } catch (const CLI::ParseError& wrong) {
    return app.exit(wrong, out, err) == 0 ? kDone : kWrongUse;
  }
  return request;
}

}  // namespace nautrel::exchange
