// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QIcon>
#include <QPixmap>
#include <string_view>

namespace nautrel {

/// An icon of the family in all its rendered sizes, by its name: "einfuegen".
QIcon namedIcon(std::string_view name);
/// An icon that is one sign, such as an arrow, in the colour of the text on buttons.
QIcon namedSign(std::string_view name);
/// A picture of the program by its name, sharp at the screen's scale: "splash".
QPixmap namedPicture(const QString& name);

}  // namespace nautrel
