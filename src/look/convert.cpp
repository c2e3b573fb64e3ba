// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/convert.h"

namespace nautrel {

int toQtPosition(const QString& text, std::size_t characters) {
  int position = 0;
  for (; characters > 0 && position < text.size(); --characters)
    position += text.at(position).isHighSurrogate() ? 2 : 1;
  return qMin(position, static_cast<int>(text.size()));
}

std::size_t fromQtPosition(const QString& text, int position) {
  std::size_t characters = 0;
  for (int i = 0; i < position && i < text.size(); ++i)
    if (!text.at(i).isLowSurrogate()) ++characters;
  return characters;
}

namespace {

int commonStart(const QString& one, const QString& other, int most) {
  int same = 0;
  while (same < most && one.at(same) == other.at(same)) ++same;
  return same > 0 && one.at(same - 1).isHighSurrogate() ? same - 1 : same;
}

int commonEnd(const QString& one, const QString& other, int most) {
  int same = 0;
  while (same < most && one.at(one.size() - 1 - same) == other.at(other.size() - 1 - same)) ++same;
  return same > 0 && one.at(one.size() - same).isLowSurrogate() ? same - 1 : same;
}

}  // namespace

// What stands behind the caret was not edited, even if it repeats what came in before it.
TextEdit editBetween(const QString& before, const QString& after, int caret) {
  const int shorter = static_cast<int>(qMin(before.size(), after.size()));
  const int behindCaret = static_cast<int>(after.size()) - caret;
  int end = commonEnd(before, after, qMin(behindCaret, shorter));
  const int start = commonStart(before, after, shorter - end);
  if (end < behindCaret) end = commonEnd(before, after, shorter - start);
  const auto first = fromQtPosition(before, start);
  return {first, fromQtPosition(before, static_cast<int>(before.size()) - end) - first,
          after.mid(start, after.size() - end - start)};
}

}  // namespace nautrel
