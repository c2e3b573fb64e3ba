// SPDX-License-Identifier: GPL-2.0-or-later
#include "random_logbook.h"

namespace nautrel::exchange {
namespace {

const std::string kPieces[] = {"a",
                               "Blue Hole",
                               " ",
                               "\n",
                               "\r\n",
                               "\r",
                               "\t",
                               "\"",
                               ";",
                               ",",
                               ", ",
                               "'",
                               "=1+1",
                               "@x",
                               "-",
                               "<b>",
                               "&amp;",
                               "]]>",
                               "<!--",
                               "\x01",
                               "\x7F",
                               "\xFF",
                               "\xC3",
                               "ä",
                               "漢",
                               "😀",
                               "\xEF\xBF\xBE",
                               "\xEF\xBF\xBD",
                               "0",
                               "60.5",
                               "60,5",
                               "Geb: 1.1.2001",
                               "Info",
                               ": ",
                               " (null)",
                               "05.03.2001",
                               "12.5 USD",
                               "\xC2\x85",
                               "\xED\xA0\x80",
                               "|",
                               std::string("\0", 1),
                               "\xE2\x80\xA8",
                               "..\\x.jpg",
                               "ft"};

}  // namespace

std::string RandomLogbooks::text() {
  std::string text;
  for (int count = below(5); count > 0; --count) text += kPieces[below(std::size(kPieces))];
  return text;
}

std::string RandomLogbooks::number() {
  auto text = std::to_string(below(below(2) == 0 ? 40 : 4000));
  if (below(3) == 0) text += (below(4) == 0 ? "," : ".") + std::to_string(below(100));
  return text;
}

Cell RandomLogbooks::cell() {
  return below(6) == 0 ? Cell() : Cell(text());
}

Cell RandomLogbooks::value(int column) {
  if (below(4) == 0) return cell();
  switch (column) {
    case Feld::Tag:
      return std::to_string(1 + below(31));
    case Feld::Monat:
      return std::to_string(1 + below(12));
    case Feld::Jahr:
      return std::to_string(1999 + below(3));
    case Feld::Höhe:
      return number() + "ft";
    default:
      return column == Feld::Nr || diveColumn(column).isNumber ? Cell(number()) : cell();
  }
}

DiveRecord RandomLogbooks::dive() {
  DiveRecord dive;
  for (int column = 0; column < kDiveColumns; ++column)
    if (diveColumn(column).isFlag)
      dive.flags[column] = below(3) == 0;
    else
      dive.texts[column] = value(column);
  return dive;
}

TextRow RandomLogbooks::row(std::string_view table) {
  TextRow row;
  for (const auto& each : logbookTables())
    if (each.name == table)
      for (std::size_t column = 0; column < each.columns.size(); ++column) row.push_back(cell());
  return row;
}

Logbook RandomLogbooks::next() {
  Logbook logbook;
  for (int count = 1 + below(2); count > 0; --count) logbook.dives.push_back(dive());
  logbook.card = row(Tabelle::Benutzer);
  for (int count = below(3); count > 0; --count)
    logbook.equipment.push_back(row(Tabelle::Ausrüstung));
  return logbook;
}

}  // namespace nautrel::exchange
