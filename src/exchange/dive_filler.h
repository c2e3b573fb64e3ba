// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/dates.h"
#include "exchange/import_source.h"

namespace nautrel::exchange {

/// Fills the columns of a dive with values from elsewhere: in the logbook's units, rounded and cut
/// to what the entry windows hold. What is lost by that is noted as a change; a text that was cut
/// stands whole in the comments.
class DiveFiller {
 public:
  DiveFiller(SourceDive& dive, const Locale& locale);

  /// The file's own text of a value, for the report, goes before it. Values without one are given
  /// as 0 and leave their column empty; those that are negative or too small do so too, and are
  /// told.
  /// @{
  void depth(std::string_view told, double metres);
  void duration(std::string_view told, double seconds);
  void tankSize(std::string_view told, double cubicMetres);
  void pressure(int column, std::string_view told, double pascals);
  void weight(std::string_view told, double kilograms);
  void altitude(std::string_view told, double metres);
  /// @}
  /// Nothing for a text that is no date.
  void date(std::string_view told, const std::optional<Moment>& moment);
  void text(int column, std::string_view text);
  void flag(int column) { dive_.record.flags.set(column); }
  void visibility(double metres);

  /// A text that is no number, where one was wanted.
  void noNumber(int column, std::string_view told) { notTaken(column, told, "is no number"); }
  /// A doubt about how the file's text was read.
  void doubt(int column, std::string_view told, std::string why) {
    change(column, told, dive_.record.text(column), std::move(why));
  }
  /// A line for the comments, below what the file has as such.
  void line(std::string line) { lines_.push_back(std::move(line)); }

  /// Closes the comments and looks whether all is there that a dive must have.
  void finish();

 private:
  void number(int column, std::string_view told, double exact, double shownExactly);
  void notTaken(int column, std::string_view told, std::string why);
  void change(int column, std::string_view from, std::string_view to, std::string why);
  void leaveOut(std::string why);
  void require(int column, const std::string& name);

  SourceDive& dive_;
  const Locale& locale_;
  std::vector<std::string> lines_;
  std::map<int, std::string> unreadable_;  // by column
};

}  // namespace nautrel::exchange
