// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace nautrel {

/// A piece of a template: a text that stands for itself, or a mark in double braces.
struct TemplatePiece {
  enum class Kind { Text, Value, Begin, BeginWithout, End, Other };
  Kind kind = Kind::Text;
  std::string_view text;  // of a mark its name
};

/// The pieces of a template in order, up to a mark that never closes. They point into the source.
std::vector<TemplatePiece> templatePieces(std::string_view source);

/// The names that a template fills in.
using Names = std::set<std::string, std::less<>>;

/// The names that marks give; of "first.Nr" both parts, of "Plz or Ort" the whole too.
Names namesIn(const std::vector<TemplatePiece>& pieces);

/// Parts "Plz or Ort"; a name alone is its only part.
std::vector<std::string> alternatives(std::string_view name);

/// How deep sections stand in each other.
std::size_t depthOf(const std::vector<TemplatePiece>& pieces);

/// A text without the blanks and line ends around it.
std::string_view trimmed(std::string_view text);

}  // namespace nautrel
