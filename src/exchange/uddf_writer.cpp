// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/uddf_writer.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include "exchange/dates.h"
#include "exchange/plain_text.h"
#include "exchange/private_block.h"
#include "exchange/uddf_owner.h"
#include "exchange/units.h"

namespace nautrel::exchange {
namespace {

// A key of several texts; no text that goes into XML holds it.
constexpr char kJoint = '\x1F';

const std::string& orEmpty(const Cell& cell) {
  static const std::string empty;
  return cell ? *cell : empty;
}

const std::string& orZero(const Cell& cell) {
  static const std::string zero = "0";
  return cell ? *cell : zero;
}

/// Country, location, name and water; empty if none of them is told.
std::string siteKey(const StandardDive& told) {
  std::string key;
  bool any = false;
  for (const int column : {Feld::Land, Feld::Ort, Feld::Platz, Feld::Salz}) {
    any = any || told[column];
    (key += orEmpty(told[column])) += kJoint;
  }
  return any ? key : std::string();
}

std::string now() {
  const auto minutes = std::chrono::floor<std::chrono::minutes>(std::chrono::system_clock::now());
  const auto day = std::chrono::floor<std::chrono::days>(minutes);
  return momentText(isoText(Date(day)), static_cast<int>((minutes - day).count())) + "Z";
}

std::string nameOf(const DiveRecord& dive) {
  return "Dive " + std::string(dive.text(Feld::Nr));
}

}  // namespace

void Definitions::add(const std::string& key) {
  if (!key.empty() && places_.try_emplace(key, keys_.size() + 1).second) keys_.push_back(key);
}

std::string Definitions::idOf(const std::string& key) const {
  const auto place = places_.find(key);
  return place == places_.end() ? "" : kind_ + "-" + std::to_string(place->second);
}

UddfWriter::UddfWriter(const Logbook& logbook, const Locale& locale)
    : logbook_(logbook), locale_(locale) {
  for (const auto& dive : logbook_.dives) define(toStandard(dive, locale_));
}

void UddfWriter::define(const StandardDive& told) {
  images_.add(orEmpty(told[Feld::Grafik]));
  suits_.add(orEmpty(told[Feld::Anzug]));
  tanks_.add(orEmpty(told[Feld::Alu]));
  sites_.add(siteKey(told));
  for (const auto& buddy : buddiesOf(orEmpty(told[Feld::Buddy]))) buddies_.add(buddy);
}

std::string UddfWriter::head() {
  xml_.raw("<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n");
  xml_.begin("uddf", {{"xmlns", "http://www.streit.cc/uddf/3.2/"}, {"version", "3.2.2"}});
  writeGenerator();
  if (!images_.keys().empty()) writeImages();
  xml_.begin("diver");
  writeOwner();
  writeBuddies();
  xml_.end();
  if (!sites_.keys().empty()) writeSites();
  if (!logbook_.dives.empty()) xml_.begin("profiledata");
  return xml_.take();
}

void UddfWriter::writeGenerator() {
  xml_.begin("generator");
  xml_.leaf("name", "Nautrel");
  xml_.leaf("type", "logbook");
  xml_.leaf("version", "2.0");
  xml_.leaf("datetime", now());
  xml_.end();
}

void UddfWriter::writeImages() {
  xml_.begin("mediadata");
  for (const auto& path : images_.keys()) {
    xml_.begin("image", {{"id", images_.idOf(path)}});
    xml_.leaf("objectname", path);
    xml_.end();
  }
  xml_.end();
}

void UddfWriter::writeOwner() {
  const auto card = toStandard(Tabelle::Benutzer,
                               logbook_.card.empty() ? TextRow(Karte::Count, "") : logbook_.card);
  xml_.begin("owner", {{"id", "owner"}});
  writeOwnerBeforeEquipment(xml_, card);
  writeOwnEquipment();
  writeOwnerAfterEquipment(xml_, card);
  xml_.end();
}

void UddfWriter::writeOwnEquipment() {
  if (suits_.keys().empty() && tanks_.keys().empty() && logbook_.equipment.empty()) return;
  xml_.begin("equipment");
  for (const auto& suit : suits_.keys()) {
    xml_.begin("suit", {{"id", suits_.idOf(suit)}});
    xml_.leaf("name", suit);
    xml_.end();
  }
  for (const auto& material : tanks_.keys()) {
    xml_.begin("tank", {{"id", tanks_.idOf(material)}});
    xml_.leaf("name", material == "steel" ? "Steel tank" : "Aluminum tank");
    xml_.leaf("tankmaterial", material);
    xml_.end();
  }
  int number = 0;
  for (const auto& row : logbook_.equipment)
    writePiece(xml_, toStandard(Tabelle::Ausrüstung, row), ++number);
  xml_.end();
}

void UddfWriter::writeBuddies() {
  for (const auto& buddy : buddies_.keys()) {
    xml_.begin("buddy", {{"id", buddies_.idOf(buddy)}});
    xml_.begin("personal");
    xml_.leaf("firstname", buddy);
    xml_.empty("lastname");
    xml_.end();
    xml_.end();
  }
}

void UddfWriter::writeSites() {
  xml_.begin("divesite");
  for (const auto& key : sites_.keys()) {
    const auto parts = splitAt(key, std::string_view(&kJoint, 1));
    const auto country = parts[0];
    xml_.begin("site", {{"id", sites_.idOf(key)}});
    xml_.leaf("name", parts[2]);
    xml_.leafIfAny("environment", parts[3]);
    xml_.begin("geography");
    xml_.leaf("location", parts[1]);
    if (!country.empty()) {
      xml_.begin("address");
      xml_.leaf("country", country);
      xml_.end();
    }
    xml_.end();
    xml_.end();
  }
  xml_.end();
}

std::string UddfWriter::dive(const DiveRecord& dive) {
  const auto told = toStandard(dive, locale_);
  if (dives_ == 0 || !dive.flags[Feld::Rep]) {
    if (dives_ > 0) xml_.end();
    xml_.begin("repetitiongroup", {{"id", "rg-" + std::to_string(++groups_)}});
  }
  xml_.begin("dive", {{"id", "dive-" + std::to_string(++dives_)}});
  xml_.begin("applicationdata");
  writePrivateBlock(xml_, dive, locale_.decimal);
  xml_.end();
  writeBefore(told);
  writeTank(told);
  writeAfter(told);
  xml_.end();
  noteLosses(dive, told);
  return xml_.take();
}

std::string UddfWriter::tail() {
  if (dives_ > 0) xml_.end();
  if (!logbook_.dives.empty()) xml_.end();
  xml_.end();
  return xml_.take();
}

void UddfWriter::writeLink(const std::string& id) {
  if (!id.empty()) xml_.empty("link", {{"ref", id}});
}

void UddfWriter::writeBefore(const StandardDive& told) {
  xml_.begin("informationbeforedive");
  writeLink(sites_.idOf(siteKey(told)));
  for (const auto& buddy : buddiesOf(orEmpty(told[Feld::Buddy]))) writeLink(buddies_.idOf(buddy));
  xml_.leafIfAny("divenumber", orEmpty(told[Feld::Nr]));
  xml_.leaf("datetime", startOf(told));
  xml_.leafIfAny("altitude", orEmpty(told[Feld::Höhe]));
  if (told[Feld::Blei] || told[Feld::Anzug]) {
    xml_.begin("equipmentused");
    xml_.leafIfAny("leadquantity", orEmpty(told[Feld::Blei]));
    writeLink(suits_.idOf(orEmpty(told[Feld::Anzug])));
    xml_.end();
  }
  xml_.leafIfAny("platform", orEmpty(told[Feld::Ufer]));
  xml_.end();
}

void UddfWriter::writeTank(const StandardDive& told) {
  using namespace Feld;
  if (!told[Alu] && !told[Liter] && !told[Bars] && !told[Bare]) return;
  xml_.begin("tankdata");
  writeLink(tanks_.idOf(orEmpty(told[Alu])));
  xml_.leafIfAny("tankvolume", orEmpty(told[Liter]));
  xml_.leaf("tankpressurebegin", orZero(told[Bars]));
  xml_.leafIfAny("tankpressureend", orEmpty(told[Bare]));
  xml_.end();
}

void UddfWriter::writeAfter(const StandardDive& told) {
  xml_.begin("informationafterdive");
  xml_.leaf("greatestdepth", orZero(told[Feld::Tiefe]));
  xml_.leaf("diveduration", orZero(told[Feld::Zeit]));
  const auto image = images_.idOf(orEmpty(told[Feld::Grafik]));
  if (told[Feld::Lang] || !image.empty()) {
    xml_.begin("notes");
    if (told[Feld::Lang])
      for (const auto line : linesOf(*told[Feld::Lang])) xml_.leaf("para", line);
    writeLink(image);
    xml_.end();
  }
  xml_.end();
}

/// The form wants a clock, which the logbook does not have. Dives of one day are set apart, since
/// other programs take dives of like depth and length at one time for one dive of two computers.
std::string UddfWriter::startOf(const StandardDive& told) {
  constexpr int kInterval = 60;
  constexpr int kLastMinute = 24 * 60 - 1;
  const auto& date = orEmpty(told[Feld::Tag]);
  int& next = nextStart_[date];
  const int start = std::min(next, kLastMinute);
  const double seconds = readFileNumber(orZero(told[Feld::Zeit])).value_or(0);
  next = std::min(kLastMinute, start + kInterval +
                                   static_cast<int>(std::min<double>(
                                       kLastMinute, std::ceil(seconds / kSecondsOfMinute))));
  return momentText(date, start);
}

void UddfWriter::noteLosses(const DiveRecord& dive, const StandardDive& told) {
  if (!hasRealDate(dive))
    notes_.push_back(nameOf(dive) + ": " + shown(dive.text(Feld::Tag)) + "." +
                     shown(dive.text(Feld::Monat)) + "." + shown(dive.text(Feld::Jahr)) +
                     " is no date and stands as " + orEmpty(told[Feld::Tag]) + " in the file.");
  for (int column = 0; column < kDiveColumns; ++column) {
    const auto text = dive.text(column);
    if (!diveColumn(column).isNumber || told[column] || text.empty()) continue;
    const bool required = column == Feld::Zeit || column == Feld::Tiefe;
    notes_.push_back(
        nameOf(dive) + ": " + std::string(diveColumn(column).label) + " '" + shown(text) + "' " +
        std::string(faultOfNumber(text, locale_)) +
        (required ? " and stands as 0 in the file." : " and comes back to Nautrel alone."));
  }
}

}  // namespace nautrel::exchange
