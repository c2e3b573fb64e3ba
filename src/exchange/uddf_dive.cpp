// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/uddf_dive.h"

#include "exchange/dates.h"
#include "exchange/dive_lines.h"
#include "exchange/plain_text.h"
#include "exchange/private_block.h"
#include "exchange/uddf_values.h"
#include "exchange/units.h"

namespace nautrel::exchange {
namespace {

Cell cellOf(std::string_view text) {
  return text.empty() ? Cell() : Cell(std::string(text));
}

Links linksIn(const XmlElement& element) {
  Links links;
  for (const auto& child : element.children)
    if (child.name == "link") links.emplace_back(child.attribute("ref"));
  return links;
}

template <class Definition>
const Definition* firstOf(const std::map<std::string, Definition, std::less<>>& known,
                          const Links& links) {
  for (const auto& link : links)
    if (const auto found = known.find(link); found != known.end()) return &found->second;
  return nullptr;
}

/// The lines without the layout of the file around them.
std::string laidOut(std::string_view text) {
  std::string lines;
  for (const auto line : linesOf(trimmed(text)))
    (lines += lines.empty() ? "" : "\n") += trimmed(line);
  return lines;
}

/// Of a tank that has no columns; what is no number stands in the comments as it is.
double numberOfTank(DiveFiller& filler, int tank, const std::string& text) {
  const auto number = readFileNumber(text);
  if (number && *number >= 0) return *number;
  if (!text.empty()) filler.line("Tank " + std::to_string(tank) + ": " + text);
  return 0;
}

std::string lowered(std::string_view text) {
  return lowerAscii(trimmed(text));
}

bool isDecimalSign(std::string_view text) {
  return !text.empty() && text.find_first_of("0123456789+-eE ") == std::string_view::npos;
}

/// What the numbers of a file with that sign look like.
Locale localeOf(std::string_view sign) {
  return {.decimal = std::string(sign), .grouping = sign == "." ? "," : "."};
}

}  // namespace

UddfDive::UddfDive(XmlElement& dive, const SampleSummary& samples)
    : line_(dive.line), id_(dive.attribute("id")), samples_(samples) {
  readPrivateBlock(dive);
  // Else every look for an element would go through it.
  std::erase_if(dive.children,
                [](const XmlElement& each) { return each.name == "applicationdata"; });
  readBefore(dive);
  readTanks(dive);
  readAfter(dive);
}

void UddfDive::readBefore(const XmlElement& dive) {
  const auto* found = dive.child("informationbeforedive");
  const XmlElement& before = found != nullptr ? *found : dive;
  links_ = linksIn(before);
  told_[Feld::Nr] = cellOf(before.textOf("divenumber"));
  readDate(before);
  told_[Feld::Höhe] = cellOf(before.textOf("altitude"));
  told_[Feld::Ufer] = cellOf(lowered(before.textOf("platform")));
  interval_ = before.textOf("passedtime");
  if (const auto air = before.textOf("airtemperature"); !air.empty())
    temperatures_.emplace_back("Air temperature", air);
  // It stood after the dive in earlier versions.
  if (const auto* used = dive.find("equipmentused")) {
    suitLinks_ = linksIn(*used);
    told_[Feld::Blei] = cellOf(used->textOf("leadquantity"));
  }
}

void UddfDive::readDate(const XmlElement& before) {
  if (auto moment = before.textOf("datetime"); !moment.empty()) {
    told_[Feld::Tag] = std::string(moment);
    return;
  }
  const auto* date = before.find("date");
  if (date == nullptr) return;
  std::string moment(date->textOf("year"));
  (moment += "-") += date->textOf("month");
  (moment += "-") += date->textOf("day");
  if (const auto* time = before.find("time"))
    ((moment += "T") += time->textOf("hour")).append(":") += time->textOf("minute");
  told_[Feld::Tag] = moment;
}

void UddfDive::readTanks(const XmlElement& dive) {
  dive.forEach("tankdata", [&](const XmlElement& tank) {
    tanks_.push_back({linksIn(tank), std::string(tank.textOf("tankvolume")),
                      std::string(tank.textOf("tankpressurebegin")),
                      std::string(tank.textOf("tankpressureend"))});
  });
}

void UddfDive::readAfter(const XmlElement& dive) {
  told_[Feld::Tiefe] = cellOf(dive.textOf("greatestdepth"));
  told_[Feld::Zeit] = cellOf(dive.textOf("diveduration"));
  visibility_ = dive.textOf("visibility");
  if (const auto low = dive.textOf("lowesttemperature"); !low.empty())
    temperatures_.emplace_back("Lowest temperature", low);
  std::string text;
  dive.forEach("notes", [&](const XmlElement& notes) {
    for (auto& link : linksIn(notes)) imageLinks_.push_back(std::move(link));
    if (auto lines = laidOut(notes.text); !lines.empty())
      (text += text.empty() ? "" : "\n") += lines;
  });
  told_[Feld::Lang] = cellOf(text);
}

/// A program that wrote the file again may have given the block a prefix.
void UddfDive::readPrivateBlock(const XmlElement& dive) {
  const auto* data = dive.child("applicationdata");
  const auto* block = data == nullptr ? nullptr : data->child(kPrivateElement);
  if (block == nullptr) return;
  const auto space = block->attribute("xmlns");
  if (!space.empty() && space != kPrivateNamespace) return;
  own_.emplace();
  ownSign_ = block->attribute("dec");
  bool sound = isDecimalSign(ownSign_);
  for (const auto& field : block->children)
    sound =
        takePrivateField(*own_, field.attribute("n"), field.attribute("enc"), field.text) && sound;
  if (!sound)
    throw Refused{"The private block of Nautrel in line " + std::to_string(block->line) +
                  " is damaged."};
}

std::size_t UddfDive::mainTank() const {
  for (std::size_t place = 0; place < tanks_.size(); ++place)
    if (readFileNumber(tanks_[place].begin).value_or(0) > 0) return place;
  return 0;
}

StandardDive UddfDive::resolved(const UddfDefinitions& known) const {
  auto told = told_;
  resolveSite(told, known);
  resolveTank(told, known);
  std::string buddies;
  for (const auto& link : links_)
    if (const auto buddy = known.buddies.find(link); buddy != known.buddies.end())
      (buddies += buddies.empty() ? "" : ", ") += buddy->second;
  told[Feld::Buddy] = cellOf(buddies);
  if (const auto* suit = firstOf(known.suits, suitLinks_)) told[Feld::Anzug] = cellOf(*suit);
  if (const auto* image = firstOf(known.images, imageLinks_)) told[Feld::Grafik] = cellOf(*image);
  return told;
}

void UddfDive::resolveSite(StandardDive& told, const UddfDefinitions& known) const {
  const auto* site = firstOf(known.sites, links_);
  if (site == nullptr) return;
  told[Feld::Land] = cellOf(site->country);
  told[Feld::Ort] = cellOf(site->location);
  told[Feld::Platz] = cellOf(site->name);
  told[Feld::Salz] = cellOf(lowered(site->environment));
}

void UddfDive::resolveTank(StandardDive& told, const UddfDefinitions& known) const {
  if (tanks_.empty()) return;
  const auto& tank = tanks_[mainTank()];
  told[Feld::Liter] = cellOf(tank.volume);
  told[Feld::Bars] = cellOf(tank.begin);
  told[Feld::Bare] = cellOf(tank.end);
  if (const auto* kind = firstOf(known.tanks, tank.links)) {
    told[Feld::Alu] = cellOf(lowered(kind->material));
    if (!told[Feld::Liter]) told[Feld::Liter] = cellOf(kind->volume);
  }
}

SourceDive UddfDive::converted(const UddfDefinitions& known, const Locale& locale) const {
  const auto told = resolved(known);
  return isOurs() ? ours(told, known, locale) : foreign(told, known, locale);
}

SourceDive UddfDive::foreign(const StandardDive& told, const UddfDefinitions& known,
                             const Locale& locale) const {
  SourceDive dive{.line = line_, .id = id_};
  DiveFiller filler(dive, locale);
  fillFromStandard(filler, dive, told);
  const auto* site = firstOf(known.sites, links_);
  if (site != nullptr) fillFromSite(filler, dive.record, *site);
  fillFromSamples(filler, dive.record, samples_);
  if (const auto metres = readFileNumber(visibility_)) filler.visibility(*metres);
  constexpr double kRepetitive = 12 * 60 * 60;
  const auto interval = readFileNumber(interval_);
  if (interval && *interval > 0 && *interval <= kRepetitive) filler.flag(Feld::Rep);
  tellTanks(filler, known);
  for (const auto& [label, kelvin] : temperatures_) tellKelvin(filler, label, kelvin);
  if (samples_.lowestTemperature && temperatures_.empty())
    tellKelvin(filler, "Lowest temperature", fixedText(*samples_.lowestTemperature, 2));
  filler.finish();
  return dive;
}

void UddfDive::tellTanks(DiveFiller& filler, const UddfDefinitions& known) const {
  const auto main = mainTank();
  for (std::size_t place = 0; place < tanks_.size(); ++place) {
    const auto& tank = tanks_[place];
    const auto number = static_cast<int>(place) + 1;
    ToldTank told;
    if (place != main) {
      const auto read = [&](const std::string& text) { return numberOfTank(filler, number, text); };
      told = {cubicMetresOf(read(tank.volume)), pascalsOf(read(tank.begin)),
              pascalsOf(read(tank.end))};
    }
    if (const auto* mix = firstOf(known.mixes, tank.links)) {
      told.oxygen = mix->oxygen;
      told.helium = mix->helium;
    }
    tellTank(filler, number, told, place == main);
  }
}

/// What was changed in another program since the export counts; everything else is as it was.
SourceDive UddfDive::ours(const StandardDive& told, const UddfDefinitions& known,
                          const Locale& locale) const {
  const auto exact = toStandard(*own_, localeOf(ownSign_));
  SourceDive dive{.line = line_, .id = id_, .record = *own_, .ours = true};
  changeDecimalSign(dive.record, ownSign_, locale.decimal);
  std::optional<SourceDive> edited;
  for (int column = 0; column < kDiveColumns; ++column) {
    if (saysNothing(column, told[column]) || meansTheSame(column, told[column], exact[column]))
      continue;
    if (columnsToldBy(column).empty()) continue;
    if (!edited) edited = foreign(told, known, locale);
    takeEdited(dive, *edited, column, *told[column]);
  }
  dive.number = readWhole(dive.record.text(Feld::Nr));
  if (const auto moment = readMoment(told[Feld::Tag].value_or("")))
    dive.minuteOfDay = moment->minuteOfDay;
  return dive;
}

}  // namespace nautrel::exchange
