// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "exchange/import_source.h"
#include "exchange/sample_summary.h"
#include "exchange/standard_dive.h"
#include "exchange/xml_tree.h"

namespace nautrel::exchange {

using Links = std::vector<std::string>;

/// What the dives of a file link to, by kind and id.
struct UddfDefinitions {
  struct Site {
    std::string country;
    std::string location;
    std::string city;
    std::string name;
    std::string environment;
    double density = 0;  // kg/m³
  };
  struct Mix {
    std::string name;
    double oxygen = 0;  // percent
    double helium = 0;
  };
  struct Tank {
    std::string material;
    std::string volume;
  };
  std::map<std::string, Site, std::less<>> sites;
  std::map<std::string, std::string, std::less<>> buddies;
  std::map<std::string, std::string, std::less<>> suits;
  std::map<std::string, std::string, std::less<>> images;
  std::map<std::string, std::string, std::less<>> makers;
  std::map<std::string, Mix, std::less<>> mixes;
  std::map<std::string, Tank, std::less<>> tanks;
};

/// A dive as a UDDF file tells it; texts as they stand there.
class UddfDive {
 public:
  /// From the element of the dive, of which the private block is taken out, and its samples. Raises
  /// Refused for a private block that is none.
  UddfDive(XmlElement& dive, const SampleSummary& samples);

  /// Whether our private block is in it.
  bool isOurs() const { return own_.has_value(); }
  /// In the logbook's terms, with a text for every link that is known.
  SourceDive converted(const UddfDefinitions& known, const Locale& locale) const;

 private:
  struct Tank {
    Links links;
    std::string volume;
    std::string begin;
    std::string end;
  };

  void readBefore(const XmlElement& dive);
  void readDate(const XmlElement& before);
  void readTanks(const XmlElement& dive);
  void readAfter(const XmlElement& dive);
  void readPrivateBlock(const XmlElement& dive);

  StandardDive resolved(const UddfDefinitions& known) const;
  void resolveSite(StandardDive& told, const UddfDefinitions& known) const;
  void resolveTank(StandardDive& told, const UddfDefinitions& known) const;
  std::size_t mainTank() const;
  SourceDive foreign(const StandardDive& told, const UddfDefinitions& known,
                     const Locale& locale) const;
  SourceDive ours(const StandardDive& told, const UddfDefinitions& known,
                  const Locale& locale) const;
  void tellTanks(class DiveFiller& filler, const UddfDefinitions& known) const;

  int line_;
  std::string id_;
  StandardDive told_;  // but for what is linked
  Links links_;        // to sites and buddies
  Links suitLinks_;
  Links imageLinks_;
  std::vector<Tank> tanks_;
  SampleSummary samples_;
  std::string visibility_;
  std::string interval_;                                           // s, since the dive before
  std::vector<std::pair<std::string, std::string>> temperatures_;  // label and K
  std::optional<DiveRecord> own_;
  std::string ownSign_;
};

}  // namespace nautrel::exchange
