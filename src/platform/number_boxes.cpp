// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/number_boxes.h"

#include "platform/desktop.h"
#include "platform/errors.h"

namespace nautrel {
namespace {

void step(TextBox& box, double by, const Locale& locale) {
  resumeNext([&] { box.setText(generalText(readNumber(box.text(), locale) + by, locale)); });
  box.Refresh();
}

/// A comparison of two texts goes by characters; a bound that holds no text is compared as number.
bool sortsBelow(const std::string& text, const Value& bound, const Locale& locale) {
  return bound.isText() ? text < bound.text(locale)
                        : readNumber(text, locale) < bound.number(locale);
}

bool outside(const TextBox& box, const Value& first, const Value& last, const Locale& locale) {
  return trueOrFails([&] {
    return sortsBelow(box.text(), first, locale) ||
           readNumber(box.text(), locale) > last.number(locale);
  });
}

}  // namespace

void keepWholeNumber(TextBox& box, double least, const Locale& locale) {
  const auto value = tryNumber(box.text(), locale);
  if (!value || *value < least) box.setText("");
  if (const auto kept = tryNumber(box.text(), locale))
    resumeNext([&] { box.setText(generalText(toInt16(*kept), locale)); });
}

void spinUp(TextBox& box, const SpinRange& range, const Locale& locale) {
  if (box.isEmpty()) resumeNext([&] { box.setText(range.empty.text(locale)); });
  const auto value = tryNumber(box.text(), locale);
  const auto most = tryNumber(range.most.joined(locale), locale);
  if (value && most && *value < *most) step(box, 1, locale);
}

void spinDown(TextBox& box, const SpinRange& range, const Locale& locale) {
  if (box.isEmpty()) resumeNext([&] { box.setText(range.empty.text(locale)); });
  const auto value = tryNumber(box.text(), locale);
  const auto least = tryNumber(range.least.joined(locale), locale);
  if (value && least && *value > *least) step(box, -1, locale);
}

std::string checkRange(Desktop& desktop, const TextBox& first, const TextBox& last,
                       const Value& ersteNummer, const Value& letzteNummer,
                       const RangeMessages& messages) {
  const auto& locale = desktop.locale();
  std::string verdict;
  const auto fail = [&](const char* word, const std::string& message) {
    verdict = word;
    desktop.MsgBox(message);
  };
  if (outside(first, ersteNummer, letzteNummer, locale)) fail("falsch erster", messages.first);
  if (outside(last, ersteNummer, letzteNummer, locale)) fail("falsch letzter", messages.last);
  if (trueOrFails(
          [&] { return readNumber(first.text(), locale) > readNumber(last.text(), locale); }))
    fail("falsch", messages.order);
  return verdict;
}

}  // namespace nautrel
