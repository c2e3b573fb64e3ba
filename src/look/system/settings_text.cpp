// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/system/settings_text.h"

#include <QFile>
#include <QSettings>
#include <QStringList>

#include "platform/desktop.h"

namespace nautrel {
namespace {

/// A key as the file spells it: what is no plain letter by its number.
QByteArray spelled(const QString& key) {
  QByteArray text;
  for (const auto character : key) {
    const auto code = character.unicode();
    const bool plain =
        code < 0x80 && (character.isLetterOrNumber() || code == '_' || code == '-' || code == '.');
    if (plain)
      text += static_cast<char>(code);
    else
      text += (code < 0x100 ? "%" : "%U") +
              QByteArray::number(code, 16).rightJustified(code < 0x100 ? 2 : 4, '0').toUpper();
  }
  return text;
}

/// What stands behind the last such key of the section; null if none does.
QString lineText(const QString& path, const QString& section, const QString& key) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QString text;
  bool inside = false;
  const auto heading = '[' + spelled(section) + ']';
  while (!file.atEnd()) {
    const auto line = file.readLine().trimmed();
    if (line.startsWith('[')) inside = line == heading;
    const auto equals = line.indexOf('=');
    if (inside && equals > 0 && line.left(equals).trimmed() == spelled(key))
      text = QString::fromUtf8(line.mid(equals + 1).trimmed());
  }
  return text;
}

}  // namespace

// For the registry the toolkit would put a key of its own between the application's and the
// sections.
QString settingsPlace() {
  const QSettings users(QSettings::NativeFormat, QSettings::UserScope,
                        QString::fromUtf8(kApplicationTitle));
  return users.fileName().remove(QStringLiteral("\\OrganizationDefaults"));
}

QString settingText(const QSettings& settings, const QString& section, const QString& key) {
  const auto value = settings.value(section + '/' + key);
  if (value.typeId() != QMetaType::QStringList) return value.toString();
  const auto text = lineText(settings.fileName(), section, key);
  return text.isNull() ? value.toStringList().join(',') : text;
}

}  // namespace nautrel
