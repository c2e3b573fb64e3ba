// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QRect>

namespace nautrel {

/// Where a main window is to be shown: where it wants to be, unless its title bar would lie on none
/// of the screens or it is larger than all of them together; then inside the nearest one.
QRect pulledBack(const QRect& window, const QList<QRect>& screens);

}  // namespace nautrel
