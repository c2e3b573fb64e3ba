// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>

namespace nautrel {

/// What text wants, and what an icon or a mark does.
/// @{
inline constexpr double kReadable = 4.5;
inline constexpr double kSeen = 3;
/// @}

/// How far two colours stand apart for the eye: from 1, the same, to 21, black and white.
double contrast(const QColor& one, const QColor& other);
/// The colour, or where it stands too near to the other, the nearest darker or lighter one that
/// does not.
QColor readable(const QColor& color, const QColor& against, double least);

}  // namespace nautrel
