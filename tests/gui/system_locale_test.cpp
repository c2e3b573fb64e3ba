// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/system/system_locale.h"

#include <gtest/gtest.h>

#include "look/convert.h"

namespace nautrel {
namespace {

constexpr DateTime kMoment{2026, 11, 21, 14, 7, 9};

TEST(SystemLocale, WritesTheGeneralDateAsPeopleThereDo) {
  const std::pair<const char*, const char*> cases[] = {
      {"C", "21 Nov 2026 14:07:09"},     {"en_US", "11/21/26 2:07:09 PM"},
      {"de_DE", "21.11.26 14:07:09"},    {"sq_AL", "21.11.26 2:07:09 PM"},
      {"be_BY", "21.11.26 14:07:09"},    {"zh_HK", "21/11/2026 PM2:07:09"},
      {"zh_TW", "2026/11/21 PM2:07:09"}, {"fr_CA", "2026-11-21 14 h 07 min 09 s"},
      {"eu_ES", "26/11/21 14:07:09"}};
  for (const auto& [name, written] : cases)
    EXPECT_EQ(generalDate(kMoment, localeOf(QLocale(name))), written) << name;
}

TEST(SystemLocale, LeavesNothingOfTheZone) {
  for (const auto& locale :
       QLocale::matchingLocales(QLocale::AnyLanguage, QLocale::AnyScript, QLocale::AnyTerritory)) {
    const auto text = toQt(generalDate(kMoment, localeOf(locale)));
    EXPECT_FALSE(text.contains('[') || text.contains('(') || text.endsWith(',') ||
                 text != text.trimmed() || text.contains("  "))
        << fromQt(locale.name() + ": " + text);
  }
}

}  // namespace
}  // namespace nautrel
