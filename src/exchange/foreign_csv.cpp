// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/foreign_csv.h"

#include <algorithm>
#include <set>

#include "exchange/csv_columns.h"
#include "exchange/csv_values.h"
#include "exchange/dive_lines.h"
#include "exchange/format.h"
#include "exchange/plain_text.h"
#include "exchange/units.h"

namespace nautrel::exchange {
namespace {

/// A number of minutes before a colon that is more than any dive has hours.
constexpr double kMoreThanHours = 5;
constexpr int kLastMonth = 12;
constexpr std::size_t kLongestText = 1U << 20;

class ForeignCsv final : public ImportSource {
 public:
  ForeignCsv(std::unique_ptr<CsvTable> table, const std::string& fileName)
      : table_(std::move(table)), columns_(csvColumns(table_->header())) {
    require(fileName);
    findTanks();
    findDecimalSign();
    askForDates();
    askForDurations();
    askForUnits();
  }

  std::size_t diveCount() const override { return table_->rowCount(); }
  std::vector<Question> questions() const override { return questions_; }
  std::vector<std::string> notes() const override;
  std::vector<SourceDive> dives(const Answers& answers, const Locale& locale) const override;

 private:
  void require(const std::string& fileName) const;
  std::size_t placeOf(int role) const;
  /// Calls `visit` with each cell of a column that holds something.
  template <class Visit>
  void forCells(std::size_t place, const Visit& visit) const {
    for (const auto& row : *table_)
      if (const auto cell = trimmed(row.cells[place].text); !cell.empty()) visit(cell);
  }
  void findTanks();
  void findDecimalSign();
  void askForDates();
  void askForDurations();
  void askForUnits();
  void ask(Question::About about, std::size_t place, std::string_view example) {
    questions_.push_back({about, columns_[place].head, std::string(example)});
  }
  void requireAnswers(const Answers& answers) const;

  SourceDive convert(const CsvRow& row, const Answers& answers, const Locale& locale) const;
  void take(DiveFiller& filler, SourceDive& dive, const CsvColumn& column, const CsvCell& cell,
            const Answers& answers) const;
  std::optional<double> valueOf(const CsvColumn& column, std::string_view text,
                                const Answers& answers) const;
  void takeMeasure(DiveFiller& filler, const CsvColumn& column, std::string_view text,
                   const Answers& answers) const;
  int mainTank(const CsvRow& row) const;
  ToldTank toldTank(DiveFiller& filler, const CsvRow& row, int tank, bool isMain,
                    const Answers& answers) const;
  void tellTemperatureOf(DiveFiller& filler, const CsvColumn& column, std::string_view text) const;

  std::unique_ptr<CsvTable> table_;
  std::vector<CsvColumn> columns_;
  std::vector<Question> questions_;
  DecimalSign decimal_;
  std::set<int> tanks_;
  DateOrder dateOrder_ = DateOrder::DayFirst;                 // where the column tells it
  DurationForm durationForm_ = DurationForm::MinutesSeconds;  // likewise
};

bool isMeasured(int role) {
  return role == Feld::Tiefe || role == Feld::Bars || role == Feld::Bare || role == Feld::Liter ||
         role == Feld::Blei;
}

/// The unit of a column where neither head nor cell names it.
CsvUnit unitIn(int role, UnitSystem system) {
  const bool metric = system == UnitSystem::Metric;
  switch (role) {
    case Feld::Tiefe:
      return metric ? CsvUnit::Metre : CsvUnit::Foot;
    case Feld::Liter:
      return metric ? CsvUnit::Litre : CsvUnit::CubicFoot;
    case Feld::Blei:
      return metric ? CsvUnit::Kilogram : CsvUnit::Pound;
    default:
      return metric ? CsvUnit::Bar : CsvUnit::Psi;
  }
}

/// What one of the unit is in that of UDDF; 0 for one that measures something else.
double factorOf(int role, CsvUnit unit) {
  const auto either = [&](CsvUnit first, double one, CsvUnit second, double other) {
    return unit == first ? one : unit == second ? other : 0;
  };
  switch (role) {
    case Feld::Tiefe:
      return either(CsvUnit::Metre, 1, CsvUnit::Foot, kMetresOfFoot);
    case Feld::Liter:
      return either(CsvUnit::Litre, kCubicMetresOfLitre, CsvUnit::CubicFoot, kTankOfCubicFoot);
    case Feld::Blei:
      return either(CsvUnit::Kilogram, 1, CsvUnit::Pound, kKilogramsOfPound);
    default:
      return either(CsvUnit::Bar, kPascalsOfBar, CsvUnit::Psi, kPascalsOfPsi);
  }
}

void fill(DiveFiller& filler, int role, std::string_view text, double value) {
  switch (role) {
    case Feld::Tiefe:
      return filler.depth(text, value);
    case Feld::Liter:
      return filler.tankSize(text, value);
    case Feld::Blei:
      return filler.weight(text, value);
    default:
      return filler.pressure(role, text, value);
  }
}

std::size_t ForeignCsv::placeOf(int role) const {
  const auto found = std::find_if(columns_.begin(), columns_.end(),
                                  [&](const CsvColumn& column) { return column.role == role; });
  return static_cast<std::size_t>(found - columns_.begin());
}

void ForeignCsv::require(const std::string& fileName) const {
  if (isProfileHeader(table_->header()))
    throw Refused{fileName + " holds the profile of a dive and no list of dives."};
  const std::pair<int, const char*> required[] = {
      {CsvRole::Date, "date"}, {Feld::Zeit, "dive time"}, {Feld::Tiefe, "depth"}};
  for (const auto& [role, name] : required)
    if (placeOf(role) == columns_.size())
      throw Refused{fileName + " cannot be read: line " + std::to_string(table_->header().line) +
                    " names no column for the " + name + "."};
  if (table_->rowCount() == 0) throw Refused{fileName + " holds no dives."};
  if (table_->brokenLine() > 0)
    throw Refused{fileName + " cannot be read: it is marked as UTF-8 and is none in line " +
                  std::to_string(table_->brokenLine()) + "."};
  for (const auto& row : *table_)
    for (const auto& cell : row.cells)
      if (cell.text.size() > kLongestText)
        throw Refused{fileName + " cannot be read: a text in line " + std::to_string(row.line) +
                      " is longer than 1 MB."};
}

void ForeignCsv::findTanks() {
  for (const auto& column : columns_)
    if (isOfTank(column.role)) tanks_.insert(column.tank);
}

void ForeignCsv::findDecimalSign() {
  for (std::size_t place = 0; place < columns_.size(); ++place)
    if (isMeasured(columns_[place].role) || columns_[place].role == Feld::Zeit)
      forCells(place, [&](std::string_view cell) { decimal_.look(cell); });
}

void ForeignCsv::askForDates() {
  const auto place = placeOf(CsvRole::Date);
  bool dayFirst = false;
  bool monthFirst = false;
  std::string_view example;
  forCells(place, [&](std::string_view cell) {
    const auto date = readDate(cell);
    if (!date || date->orderKnown) return;
    if (example.empty()) example = cell;
    dayFirst = dayFirst || date->first > kLastMonth;
    monthFirst = monthFirst || date->second > kLastMonth;
  });
  if (example.empty()) return;
  if (dayFirst == monthFirst) ask(Question::About::Dates, place, example);
  dateOrder_ = monthFirst ? DateOrder::MonthFirst : DateOrder::DayFirst;
}

void ForeignCsv::askForDurations() {
  const auto place = placeOf(Feld::Zeit);
  // So one program heads its minutes and seconds.
  bool told = lowerAscii(columns_[place].head) == "duration [min]";
  std::string_view example;
  forCells(place, [&](std::string_view cell) {
    const auto duration = readDuration(cell);
    if (!duration || duration->parts != 2) return;
    if (example.empty()) example = cell;
    told = told || duration->first > kMoreThanHours;
  });
  if (!told && !example.empty()) ask(Question::About::Durations, place, example);
}

void ForeignCsv::askForUnits() {
  for (std::size_t place = 0; place < columns_.size(); ++place) {
    const auto& column = columns_[place];
    if (!isMeasured(column.role) || factorOf(column.role, column.unit) != 0) continue;
    std::string_view example;
    forCells(place, [&](std::string_view cell) {
      const auto measure = readMeasure(cell, decimal_);
      if (measure && measure->unit == CsvUnit::None && measure->number != 0 && example.empty())
        example = cell;
    });
    if (!example.empty()) return ask(Question::About::Units, place, example);
  }
}

std::vector<std::string> ForeignCsv::notes() const {
  std::string unknown;
  for (const auto& column : columns_)
    if (column.role == CsvRole::Unknown && !column.head.empty())
      (unknown += unknown.empty() ? "" : ", ") += "'" + shown(column.head) + "'";
  if (unknown.empty()) return {};
  return {"Columns that have no place in the logbook: " + unknown + "."};
}

void ForeignCsv::requireAnswers(const Answers& answers) const {
  for (const auto& question : questions_) {
    const bool answered = question.about == Question::About::Dates ? answers.dates.has_value()
                          : question.about == Question::About::Durations
                              ? answers.durations.has_value()
                              : answers.units.has_value();
    if (!answered)
      throw Refused{"The column '" + shown(question.column) + "' can be read in two ways: '" +
                    shown(question.example) + "'."};
  }
}

std::vector<SourceDive> ForeignCsv::dives(const Answers& answers, const Locale& locale) const {
  requireAnswers(answers);
  auto told = answers;
  const auto asked = [&](Question::About about) {
    return std::any_of(questions_.begin(), questions_.end(),
                       [&](const Question& question) { return question.about == about; });
  };
  if (!asked(Question::About::Dates)) told.dates = dateOrder_;
  if (!asked(Question::About::Durations)) told.durations = durationForm_;
  std::vector<SourceDive> all;
  all.reserve(table_->rowCount());
  for (const auto& row : *table_) all.push_back(convert(row, told, locale));
  return all;
}

SourceDive ForeignCsv::convert(const CsvRow& row, const Answers& answers,
                               const Locale& locale) const {
  SourceDive dive{.line = row.line};
  DiveFiller filler(dive, locale);
  const int main = mainTank(row);
  for (std::size_t place = 0; place < columns_.size(); ++place)
    if (const auto& column = columns_[place]; !isOfTank(column.role) || column.tank == main)
      take(filler, dive, column, row.cells[place], answers);
  for (const int tank : tanks_)
    tellTank(filler, tank, toldTank(filler, row, tank, tank == main, answers), tank == main);
  for (std::size_t place = 0; place < columns_.size(); ++place)
    tellTemperatureOf(filler, columns_[place], trimmed(row.cells[place].text));
  filler.finish();
  return dive;
}

/// The first one with a start pressure.
int ForeignCsv::mainTank(const CsvRow& row) const {
  for (const int tank : tanks_)
    for (std::size_t place = 0; place < columns_.size(); ++place) {
      if (columns_[place].role != Feld::Bars || columns_[place].tank != tank) continue;
      const auto pressure = readMeasure(row.cells[place].text, decimal_);
      if (pressure && pressure->number > 0) return tank;
    }
  return 1;
}

/// What is no value stands in the comments as it is.
ToldTank ForeignCsv::toldTank(DiveFiller& filler, const CsvRow& row, int tank, bool isMain,
                              const Answers& answers) const {
  ToldTank told;
  const auto percent = [](double value) { return value <= 1 ? value * 100 : value; };
  for (std::size_t place = 0; place < columns_.size(); ++place) {
    const auto& column = columns_[place];
    const auto text = trimmed(row.cells[place].text);
    const bool toldElsewhere = isMain && isMeasured(column.role);
    if (!isOfTank(column.role) || column.tank != tank || toldElsewhere || text.empty()) continue;
    const auto value = valueOf(column, text, answers);
    if (!value || *value < 0)
      filler.line(column.head + ": " + std::string(text));
    else if (column.role == CsvRole::Oxygen)
      told.oxygen = percent(*value);
    else if (column.role == CsvRole::Helium)
      told.helium = percent(*value);
    else
      (column.role == Feld::Liter  ? told.cubicMetres
       : column.role == Feld::Bars ? told.begin
                                   : told.end) = *value;
  }
  return told;
}

/// A number without a unit stands in the comments as it is.
void ForeignCsv::tellTemperatureOf(DiveFiller& filler, const CsvColumn& column,
                                   std::string_view text) const {
  const bool air = column.role == CsvRole::AirTemperature;
  if (text.empty() || (!air && column.role != CsvRole::WaterTemperature)) return;
  const std::string label = air ? "Air temperature" : "Water temperature";
  const auto measure = readMeasure(text, decimal_);
  auto unit = measure ? measure->unit : CsvUnit::None;
  if (measure && unit == CsvUnit::None) unit = column.unit;
  if (unit == CsvUnit::Celsius)
    tellTemperature(filler, label, measure->number);
  else if (unit == CsvUnit::Fahrenheit)
    tellTemperature(filler, label, (measure->number - 32) / 1.8);
  else
    filler.line(label + ": " + std::string(text));
}

void ForeignCsv::take(DiveFiller& filler, SourceDive& dive, const CsvColumn& column,
                      const CsvCell& cell, const Answers& answers) const {
  const auto text = trimmed(cell.text);
  if (text.empty() || column.role == CsvRole::Unknown) return;
  if (column.role == CsvRole::Date) {
    const auto date = readDate(text);
    filler.date(text, date ? momentOf(*date, *answers.dates) : std::nullopt);
  } else if (column.role == CsvRole::Clock) {
    if (!dive.minuteOfDay) dive.minuteOfDay = readClock(text);
  } else if (column.role == Feld::Nr) {
    dive.id = text;
    dive.number = readWhole(text);
  } else if (column.role == Feld::Zeit) {
    if (const auto duration = readDuration(text))
      filler.duration(text, secondsOf(*duration, column.unit, *answers.durations));
    else
      filler.noNumber(column.role, text);
  } else if (isMeasured(column.role)) {
    takeMeasure(filler, column, text, answers);
  } else if (column.role >= 0) {
    filler.text(column.role, text);
  }
}

std::optional<double> ForeignCsv::valueOf(const CsvColumn& column, std::string_view text,
                                          const Answers& answers) const {
  const auto measure = readMeasure(text, decimal_);
  if (!measure) return {};
  if (!isMeasured(column.role)) return measure->number;
  double factor = factorOf(column.role, measure->unit);
  if (factor == 0) factor = factorOf(column.role, column.unit);
  if (factor == 0)
    factor = factorOf(column.role, unitIn(column.role, answers.units.value_or(UnitSystem::Metric)));
  return measure->number * factor;
}

void ForeignCsv::takeMeasure(DiveFiller& filler, const CsvColumn& column, std::string_view text,
                             const Answers& answers) const {
  const auto value = valueOf(column, text, answers);
  if (!value) return filler.noNumber(column.role, text);
  fill(filler, column.role, text, *value);
  // Where commas separate cells a point is the decimal sign as a matter of course.
  const char doubt = decimal_.doubtful(text);
  if (doubt == ',' || (doubt == '.' && table_->separator() != ','))
    filler.doubt(column.role, text,
                 "nothing in the file tells whether its sign groups digits; it was taken for a "
                 "decimal one");
}

}  // namespace

std::unique_ptr<ImportSource> readForeignCsv(std::unique_ptr<CsvTable> table,
                                             const std::string& fileName) {
  return std::make_unique<ForeignCsv>(std::move(table), fileName);
}

}  // namespace nautrel::exchange
