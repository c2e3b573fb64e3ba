// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class QSettings;

namespace nautrel {

/// The user's file of settings, or key of the registry, in which the sections stand.
QString settingsPlace();

/// The text of a setting, as it stands in the file: one that was written by hand with a comma in it
/// is a list to the toolkit, which does not tell what stood around the comma. Empty if there is
/// none.
QString settingText(const QSettings& settings, const QString& section, const QString& key);

}  // namespace nautrel
