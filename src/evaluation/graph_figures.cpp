// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/figures.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

#include "platform/errors.h"
#include "store/contract.h"

namespace nautrel {
namespace {

constexpr int kYears = 10;
constexpr int kMonths = 12;

/// Labelled rows that count the texts equal to their label.
class Tally {
 public:
  explicit Tally(std::vector<std::string> labels)
      : labels_(std::move(labels)), counts_(labels_.size()) {}

  void count(const std::string& text) {
    const auto found = std::find(labels_.begin(), labels_.end(), text);
    if (found != labels_.end()) ++counts_[static_cast<std::size_t>(found - labels_.begin())];
  }

  const std::string& label(std::size_t row) const { return labels_[row]; }
  int operator[](std::size_t row) const { return counts_[row]; }
  std::size_t size() const { return labels_.size(); }

 private:
  std::vector<std::string> labels_;
  std::vector<int> counts_;
};

Tally tallyOfYears(int lastYear) {
  std::vector<std::string> years;
  for (int year = lastYear - kYears + 1; year <= lastYear; ++year)
    years.push_back(std::to_string(year));
  return Tally(years);
}

/// The two digits that a dive's month is stored with.
Tally tallyOfMonths() {
  std::vector<std::string> months;
  for (int month = 1; month <= kMonths; ++month)
    months.push_back((month < 10 ? "0" : "") + std::to_string(month));
  return Tally(months);
}

template <class Take>
void eachDive(Recordset& dives, const DiveDone& done, Take take) {
  const int count = dives.RecordCount();
  for (int counter = 1; counter <= count; ++counter) {
    take();
    done(counter);
    dives.MoveNext();
  }
}

}  // namespace

Columns yearColumns() {
  return {"Jahr"};
}

Columns monthColumns() {
  return {"Monat"};
}

YearFigures countYears(Recordset& dives, int lastYear, const Locale& locale, const DiveDone& done) {
  YearFigures figures;
  Tally tally = tallyOfYears(lastYear);
  double greatest = 0;
  Value before;
  eachDive(dives, done, [&] {
    Value year = dives.Fields(Feld::Jahr);
    tally.count(year.text(locale));
    // Dives come year by year; one like the last brings nothing new.
    if (year == before) return;
    if (const double number = year.number(locale); number > greatest) {
      greatest = number;
      figures.greatestYear = year.text(locale);
    }
    before = std::move(year);
  });
  for (std::size_t row = 0; row < tally.size(); ++row)
    figures.rows.push_back({tally.label(row), std::to_string(tally[row])});
  return figures;
}

std::array<std::string, 12> countMonths(Recordset& dives, const Locale& locale,
                                        const DiveDone& done) {
  Tally tally = tallyOfMonths();
  // A month is only compared, so that a Null one fails no more than an empty one.
  eachDive(dives, done, [&] { tally.count(dives.Fields(Feld::Monat).joined(locale)); });
  const int count = dives.RecordCount();
  if (count == 0) raise(Overflow);
  std::array<std::string, kMonths> shares;
  for (std::size_t month = 0; month < shares.size(); ++month)
    shares[month] = generalText(static_cast<double>(tally[month]) / count * 100, locale);
  return shares;
}

}  // namespace nautrel
