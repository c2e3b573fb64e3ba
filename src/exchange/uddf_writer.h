// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "exchange/logbook.h"
#include "exchange/standard_dive.h"
#include "exchange/xml_writer.h"
#include "platform/text.h"

namespace nautrel::exchange {

/// What is defined once in a file and linked to from the dives, in the order of its first use.
class Definitions {
 public:
  explicit Definitions(std::string_view kind) : kind_(kind) {}
  void add(const std::string& key);
  /// "site-3"; empty for an unknown or empty key.
  std::string idOf(const std::string& key) const;
  const std::vector<std::string>& keys() const { return keys_; }

 private:
  std::string kind_;
  std::vector<std::string> keys_;
  std::map<std::string, std::size_t> places_;
};

/// Writes a logbook as UDDF 3.2.2, valid but for our private block: head(), each of the dives in
/// their order, tail(). The logbook must outlive it.
class UddfWriter {
 public:
  UddfWriter(const Logbook& logbook, const Locale& locale);

  std::string head();
  std::string dive(const DiveRecord& dive);
  std::string tail();

  /// What the standard elements could not hold, a sentence each.
  const std::vector<std::string>& notes() const { return notes_; }

 private:
  void define(const StandardDive& told);
  void writeGenerator();
  void writeImages();
  void writeOwner();
  void writeOwnEquipment();
  void writeBuddies();
  void writeSites();
  void writeBefore(const StandardDive& told);
  void writeTank(const StandardDive& told);
  void writeAfter(const StandardDive& told);
  void writeLink(const std::string& id);
  std::string startOf(const StandardDive& told);
  void noteLosses(const DiveRecord& dive, const StandardDive& told);

  const Logbook& logbook_;
  Locale locale_;
  XmlWriter xml_;
  Definitions images_{"img"};
  Definitions suits_{"suit"};
  Definitions tanks_{"tank"};
  Definitions buddies_{"buddy"};
  Definitions sites_{"site"};
  std::map<std::string, int> nextStart_;  // minute of the day, by date
  std::vector<std::string> notes_;
  int dives_ = 0;
  int groups_ = 0;
};

}  // namespace nautrel::exchange
