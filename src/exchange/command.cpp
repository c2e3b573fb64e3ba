// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/command.h"

#include <algorithm>
#include <filesystem>
#include <ostream>

#include "exchange/answer.h"
#include "exchange/command_line.h"
#include "exchange/hold.h"
#include "exchange/side_files.h"
#include "platform/errors.h"
#include "platform/files.h"

namespace nautrel::exchange {
namespace {

namespace fs = std::filesystem;

/// The ways to ask what a file leaves open.
struct Asking {
  std::string what;
  std::string options;
};

Asking askingFor(Question::About about) {
  switch (about) {
    case Question::About::Dates:
      return {"whether the day or the month comes first", "--dates dmy or --dates mdy"};
    case Question::About::Durations:
      return {"whether these are minutes and seconds or hours and minutes",
              "--durations m:s or --durations h:m"};
    case Question::About::Units:
      return {"its unit", "--units metric or --units imperial"};
  }
  return {};
}

bool isAnswered(Question::About about, const Answers& answers) {
  switch (about) {
    case Question::About::Dates:
      return answers.dates.has_value();
    case Question::About::Durations:
      return answers.durations.has_value();
    case Question::About::Units:
      return answers.units.has_value();
  }
  return false;
}

/// One command at its place.
class Command {
 public:
  Command(const Request& request, const CommandPlace& place)
      : request_(request), place_(place), logbook_(inFolder(std::string(kLogbookFile))) {}

  Answer run() {
    if (request_.command == "import") return import();
    if (request_.command == "export") return exportDives();
    if (request_.command == "check") return answerOf(checkLogbook(logbook_, place_.locale));
    if (request_.command == "backup")
      return answerOf(backUpLogbook(logbook_, request_.file, request_.keep, place_.now));
    return answerOf(restoreLogbook(logbook_, request_.file, place_.now), request_.file);
  }

 private:
  std::string inFolder(const std::string& name) const {
    return utf8(nativePath(place_.folder) / nativePath(name));
  }

  Answer import() {
    std::optional<Hold> hold;
    if (!request_.dryRun) hold.emplace(logbook_);
    const auto source = openSource(request_.file, request_.format);
    requireAnswers(*source);
    Workspace workspace(request_.dryRun ? Workspace::Use::Look : Workspace::Use::Write);
    auto plan = ImportPlan::make(*source, request_.answers, workspace, logbook_, place_.locale,
                                 {.card = request_.card, .equipment = true});
    for (const int line : request_.insist) insist(plan, line);
    if (auto refusal = plan.refusal(); !refusal.empty()) throw Refused{std::move(refusal)};
    if (!request_.dryRun) plan.execute(workspace, logbook_);
    return answerOf(plan, request_.dryRun);
  }

  void requireAnswers(const ImportSource& source) const {
    for (const auto& question : source.questions()) {
      if (isAnswered(question.about, request_.answers)) continue;
      const auto asking = askingFor(question.about);
      throw Refused{"'" + question.example + "' in '" + question.column + "' leaves open " +
                    asking.what + ". Please add " + asking.options + "."};
    }
  }

  static void insist(ImportPlan& plan, int line) {
    const auto& dives = plan.dives();
    const auto isIt = [&](const PlannedDive& dive) { return dive.source.line == line; };
    const auto found = std::find_if(dives.begin(), dives.end(), isIt);
    if (found == dives.end())
      throw Refused{"No dive begins in line " + std::to_string(line) + " of the file."};
    plan.insist(static_cast<std::size_t>(found - dives.begin()));
  }

  Answer exportDives() {
    const ExportOptions options{.format = *request_.format,
                                .from = request_.from,
                                .to = request_.to,
                                .card = !request_.withoutCard,
                                .equipment = !request_.withoutEquipment,
                                .overwrite = request_.force};
    Workspace workspace(Workspace::Use::Look);
    const auto report = exportLogbook(workspace, logbook_, request_.file, options, place_.locale);
    return answerOf(report, request_.file, options);
  }

  const Request& request_;
  const CommandPlace& place_;
  std::string logbook_;
};

Answer refusal(const std::string& text) {
  return {text + "\n", {{"refused", text}}, false};
}

Answer answerTo(const Request& request, const CommandPlace& place) {
  try {
    return Command(request, place).run();
  } catch (const Refused& refused) {
    return refusal(refused.text);
  } catch (...) {
    const auto failure = failureInFlight();
    return refusal(failure ? failure->text : "The program is ending.");
  }
}

}  // namespace

int runCommand(const std::vector<std::string>& arguments, const CommandPlace& place,
               std::ostream& out, std::ostream& err) {
  const auto read = readCommandLine(arguments, out, err);
  if (const int* status = std::get_if<int>(&read)) return *status;
  const auto& request = std::get<Request>(read);
  const auto answer = answerTo(request, place);
  const bool refused = !answer.members.empty() && answer.members.front().first == "refused";
  if (request.json)
    out << Json::object(answer.members).text() << '\n';
  else
    (refused ? err : out) << answer.text;
  return answer.good ? kDone : kRefused;
}

}  // namespace nautrel::exchange
