// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/uddf_reader.h"

#include <algorithm>
#include <deque>
#include <optional>

#include "exchange/plain_text.h"
#include "exchange/uddf_definitions.h"
#include "exchange/uddf_dive.h"
#include "exchange/xml_tree.h"

namespace nautrel::exchange {
namespace {

constexpr std::size_t kMostDives = 9999;
constexpr std::size_t kMostDefinitions = 100'000;
constexpr std::size_t kLongestText = 1U << 20;

struct Content {
  std::deque<UddfDive> dives;  // large ones, that would else move again and again
  UddfDefinitions known;
  std::optional<XmlElement> owner;
};

class UddfSource final : public ImportSource {
 public:
  explicit UddfSource(Content content) : content_(std::move(content)) {}

  std::size_t diveCount() const override { return content_.dives.size(); }
  std::vector<SourceDive> dives(const Answers&, const Locale& locale) const override {
    std::vector<SourceDive> all;
    all.reserve(diveCount());
    for (const auto& dive : content_.dives) all.push_back(dive.converted(content_.known, locale));
    return all;
  }
  TextRow card() const override { return content_.owner ? cardOf(*content_.owner) : TextRow(); }
  std::vector<TextRow> equipment() const override {
    return content_.owner ? equipmentOf(*content_.owner, content_.known) : std::vector<TextRow>();
  }

 private:
  Content content_;
};

/// What is read as a whole. Everything else is passed over.
bool isRecord(std::string_view name) {
  constexpr std::string_view kRecords[] = {"dive", "site",  "owner",     "buddy",       "mix",
                                           "shop", "image", "generator", "manufacturer"};
  return std::find(std::begin(kRecords), std::end(kRecords), name) != std::end(kRecords);
}

/// Parts of a dive that may be large and mean nothing here; what stands between `samples` goes into
/// their summary.
bool isPassedOver(std::string_view name) {
  return name == "observations" || name == "equipmentmalfunction" || name == "rating" ||
         name == "profile";
}

const XmlElement* tooLongText(const XmlElement& element) {
  if (element.text.size() > kLongestText) return &element;
  for (const auto& child : element.children)
    if (const auto* found = tooLongText(child)) return found;
  return nullptr;
}

class UddfReader final : public XmlHandler {
 public:
  explicit UddfReader(const std::string& fileName) : fileName_(fileName) {}

  std::unique_ptr<ImportSource> take() {
    auto source = std::make_unique<UddfSource>(std::move(content_));
    if (source->diveCount() == 0 && isBlank(source->card()) && source->equipment().empty())
      throw Refused{fileName_ + " holds no dives."};
    return source;
  }

  void begin(std::string_view name, const XmlAttributes& attributes, int line) override {
    if (std::exchange(atRoot_, false) && name != "uddf")
      throw Refused{fileName_ + " is no UDDF file: it begins with <" + shown(name) + ">."};
    if (inside_ > 0) {
      ++inside_;
      if (inSamples_) samples_.begin(name, attributes);
    } else if (record_.isOpen()) {
      beginInRecord(name, attributes, line);
    } else if (isRecord(name)) {
      samples_ = {};
      record_.begin(name, attributes, line);
    }
  }

  void end(std::string_view name) override {
    if (inside_ > 0) {
      if (inSamples_) samples_.end(name);
      --inside_;
    } else if (record_.isOpen() && record_.end()) {
      takeRecord(record_.take());
    }
  }

  void text(std::string_view text) override {
    if (inside_ == 0 && record_.isOpen())
      record_.text(text);
    else if (inside_ > 0 && inSamples_)
      samples_.text(text);
  }

 private:
  void beginInRecord(std::string_view name, const XmlAttributes& attributes, int line) {
    inSamples_ = name == "samples" || name == "waypoint";
    const bool foreignData = inApplicationData() && name != "nautrel";
    if (!inSamples_ && !foreignData && !isPassedOver(name)) return enter(name, attributes, line);
    inside_ = 1;
  }

  void enter(std::string_view name, const XmlAttributes& attributes, int line) {
    if (record_.depth() == 1) part_ = name;
    record_.begin(name, attributes, line);
  }

  /// Of other programs' data nothing is kept.
  bool inApplicationData() const { return record_.depth() == 2 && part_ == "applicationdata"; }

  void takeRecord(XmlElement record) {
    if (record.name == "generator") {
      byNautrel_ = record.textOf("name") == "Nautrel";
      return;
    }
    if (record.name == "dive") return takeDive(record);
    refuseTooMuch(record, byNautrel_);
    if (++definitions_ > kMostDefinitions)
      throw Refused{fileName_ + " defines too many things, up to line " +
                    std::to_string(record.line) + "."};
    define(std::move(record));
  }

  void takeDive(XmlElement& record) {
    UddfDive dive(record, samples_);
    refuseTooMuch(record, dive.isOurs());
    if (content_.dives.size() == kMostDives)
      throw Refused{fileName_ + " holds more than 9999 dives."};
    content_.dives.push_back(std::move(dive));
  }

  void refuseTooMuch(const XmlElement& record, bool ours) const {
    if (ours) return;
    if (const auto* found = tooLongText(record))
      throw Refused{"The text of <" + found->name + "> in line " + std::to_string(found->line) +
                    " is longer than 1 MB."};
  }

  void define(XmlElement record) {
    auto& known = content_.known;
    if (record.name == "site") defineSite(known, record);
    if (record.name == "mix") defineMix(known, record);
    if (record.name == "buddy") defineBuddy(known, record);
    if (record.name == "image") defineImage(known, record);
    if (record.name == "manufacturer" || record.name == "shop") defineMaker(known, record);
    if (record.name != "owner") return;
    defineEquipment(known, record);
    content_.owner = std::move(record);
  }

  std::string fileName_;
  Content content_;
  bool atRoot_ = true;
  bool byNautrel_ = false;
  XmlCollector record_;
  std::string part_;        // the child of the record in which the reading is
  std::size_t inside_ = 0;  // how deep in a part that is not collected
  bool inSamples_ = false;
  SampleSummary samples_;
  std::size_t definitions_ = 0;
};

}  // namespace

std::unique_ptr<ImportSource> readUddf(InputFile& file) {
  UddfReader reader(file.name());
  parseXml(file, reader);
  return reader.take();
}

}  // namespace nautrel::exchange
