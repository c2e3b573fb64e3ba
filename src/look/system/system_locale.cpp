// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/system/system_locale.h"

#include <QRegularExpression>

#include "look/convert.h"

namespace nautrel {
namespace {

/// The names of months or days, counted as the toolkit does from `first` on.
template <class Name>
std::vector<std::string> names(int first, int count, const Name& name) {
  std::vector<std::string> all;
  for (int number = first; number < first + count; ++number) all.push_back(fromQt(name(number)));
  return all;
}

/// The time's form without the zone, whatever stands around it; AP for each kind of half of a day.
QString timeForm(QString form) {
  static const QRegularExpression zone(QStringLiteral(R"([\s,]*[(\[]?\bt+\b[)\]]?)"),
                                       QRegularExpression::UseUnicodePropertiesOption);
  static const QRegularExpression half(QStringLiteral("[aA][pP]|[aAB]+"));
  QStringList parts = form.split('\'');
  for (qsizetype part = 0; part < parts.size(); part += 2)  // between them stand quoted texts
    parts[part].remove(zone).replace(half, QStringLiteral("AP"));
  return parts.join('\'').trimmed();
}

}  // namespace

Locale localeOf(const QLocale& system) {
  Locale locale;
  locale.decimal = fromQt(system.decimalPoint());
  locale.grouping = fromQt(system.groupSeparator());
  locale.shortDate = fromQt(system.dateFormat(QLocale::ShortFormat));
  locale.longTime = fromQt(timeForm(system.timeFormat(QLocale::LongFormat)));
  const auto month = [&](auto format) {
    return [&, format](int i) { return system.monthName(i, format); };
  };
  locale.shortMonths = names(1, 12, month(QLocale::ShortFormat));
  locale.months = names(1, 12, month(QLocale::LongFormat));
  const auto day = [&](auto format) {
    return [&, format](int i) { return system.dayName(i == 0 ? 7 : i, format); };
  };
  locale.shortDays = names(0, 7, day(QLocale::ShortFormat));
  locale.days = names(0, 7, day(QLocale::LongFormat));
  return locale;
}

}  // namespace nautrel
