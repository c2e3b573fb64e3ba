// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/xml_tree.h"

#include "exchange/plain_text.h"

namespace nautrel::exchange {
namespace {

constexpr std::size_t kMostElements = 100'000;
constexpr std::string_view kParagraph = "para";

/// Those by which elements are found or understood.
constexpr std::string_view kAttributes[] = {"id",  "ref",   "n",        "enc",
                                            "dec", "xmlns", "currency", "kind"};

std::size_t endOfText(std::string_view text) {
  return text.find_last_not_of(" \t\r\n") + 1;
}

/// Bare text before it is a line of its own.
void takeParagraph(XmlElement& parent, XmlElement paragraph) {
  if (!parent.afterParagraph) parent.text.erase(endOfText(parent.text));
  if (parent.afterParagraph || !parent.text.empty()) parent.text += '\n';
  parent.text += paragraph.text;
  parent.afterParagraph = true;
  for (auto& child : paragraph.children) parent.children.push_back(std::move(child));
}

}  // namespace

std::string_view XmlElement::attribute(std::string_view wanted) const {
  for (const auto& [key, value] : attributes)
    if (key == wanted) return value;
  return {};
}

const XmlElement* XmlElement::child(std::string_view wanted) const {
  for (const auto& each : children)
    if (each.name == wanted) return &each;
  return nullptr;
}

const XmlElement* XmlElement::find(std::string_view wanted) const {
  if (const auto* own = child(wanted)) return own;
  for (const auto& each : children)
    if (const auto* found = each.find(wanted)) return found;
  return nullptr;
}

std::string_view XmlElement::textOf(std::string_view wanted) const {
  const auto* found = find(wanted);
  return found == nullptr ? std::string_view() : trimmed(found->text);
}

void XmlCollector::begin(std::string_view name, const XmlAttributes& attributes, int line) {
  if (open_.empty()) count_ = 0;
  const bool counts = name != kParagraph;
  if (counts && (++count_ > kMostElements || ++countOfAll_ > mostOfAll_))
    throw Refused{"Too many elements, up to line " + std::to_string(line) + "."};
  auto& element = open_.emplace_back();
  element.name = name;
  element.line = line;
  if (attributes.empty()) return;
  for (const auto key : kAttributes)
    if (const auto value = attributes[key]; !value.empty())
      element.attributes.emplace_back(key, value);
}

void XmlCollector::text(std::string_view text) {
  auto& element = open_.back();
  if (element.afterParagraph) {
    // What stands between paragraphs is but their layout; other text begins a line.
    const auto start = text.find_first_not_of(" \t\r\n");
    if (start == std::string_view::npos) return;
    text.remove_prefix(start);
    element.text += '\n';
    element.afterParagraph = false;
  }
  element.text += text;
}

bool XmlCollector::end() {
  auto element = std::move(open_.back());
  open_.pop_back();
  if (open_.empty()) {
    root_ = std::move(element);
    return true;
  }
  if (element.name == kParagraph)
    takeParagraph(open_.back(), std::move(element));
  else
    open_.back().children.push_back(std::move(element));
  return false;
}

}  // namespace nautrel::exchange
