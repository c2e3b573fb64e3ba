// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/template_marks.h"

#include <algorithm>

namespace nautrel {
namespace {

using Kind = TemplatePiece::Kind;

/// Reads pieces from the start of what is left. A template may give its marks other braces.
class Reader {
 public:
  explicit Reader(std::string_view source) : rest_(source) {}

  bool atEnd() const { return rest_.empty(); }

  TemplatePiece next() {
    const auto start = rest_.find(open_);
    if (start != 0) return {Kind::Text, take(start)};
    take(open_.size());
    const bool triple = open_ == "{{" && rest_.starts_with('{');
    if (triple) take(1);
    const std::string_view close = triple ? "}}}" : close_;
    const auto end = rest_.find(close);
    if (end == std::string_view::npos) return {Kind::Other, take(end)};
    const auto mark = trimmed(take(end));
    take(close.size());
    return triple ? TemplatePiece{Kind::Value, mark} : read(mark);
  }

 private:
  std::string_view take(std::size_t length) {
    const auto taken = rest_.substr(0, length);
    rest_.remove_prefix(taken.size());
    return taken;
  }

  TemplatePiece read(std::string_view mark) {
    if (mark.empty()) return {Kind::Other, mark};
    const auto name = trimmed(mark.substr(1));
    switch (mark.front()) {
      case '#':
        return {Kind::Begin, name};
      case '^':
        return {Kind::BeginWithout, name};
      case '/':
        return {Kind::End, name};
      case '&':
        return {Kind::Value, name};
      case '=':
        changeBraces(name);
        return {Kind::Other, {}};
      case '!':
      case '>':
        return {Kind::Other, name};
      default:
        return {Kind::Value, mark};
    }
  }

  void changeBraces(std::string_view braces) {
    const auto gap = braces.find(' ');
    if (!braces.ends_with('=') || gap == std::string_view::npos) return;
    open_ = braces.substr(0, gap);
    close_ = trimmed(braces.substr(gap, braces.size() - gap - 1));
  }

  std::string_view rest_;
  std::string_view open_ = "{{";
  std::string_view close_ = "}}";
};

std::vector<std::string> split(std::string_view text, std::string_view separator) {
  std::vector<std::string> parts;
  for (bool more = true; more;) {
    const auto end = text.find(separator);
    parts.emplace_back(trimmed(text.substr(0, end)));
    more = end != std::string_view::npos;
    if (more) text.remove_prefix(end + separator.size());
  }
  return parts;
}

}  // namespace

std::string_view trimmed(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n\f\v";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

std::vector<TemplatePiece> templatePieces(std::string_view source) {
  std::vector<TemplatePiece> pieces;
  for (Reader reader(source); !reader.atEnd();) pieces.push_back(reader.next());
  return pieces;
}

Names namesIn(const std::vector<TemplatePiece>& pieces) {
  Names names;
  for (const auto& piece : pieces) {
    if (piece.kind == Kind::Text || piece.kind == Kind::Other) continue;
    names.emplace(piece.text);
    for (const auto& name : alternatives(piece.text))
      for (const auto& part : split(name, ".")) names.insert(part);
  }
  return names;
}

std::vector<std::string> alternatives(std::string_view name) {
  return split(name, " or ");
}

std::size_t depthOf(const std::vector<TemplatePiece>& pieces) {
  std::size_t depth = 0;
  std::size_t deepest = 0;
  for (const auto& piece : pieces) {
    if (piece.kind == Kind::Begin || piece.kind == Kind::BeginWithout)
      deepest = std::max(deepest, ++depth);
    else if (piece.kind == Kind::End && depth > 0)
      --depth;
  }
  return deepest;
}

}  // namespace nautrel
