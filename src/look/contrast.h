// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QColor>

namespace nautrel {

/// How far two colours stand apart for the eye: from 1, the same, to 21, black and white. Text
/// wants 4.5, an icon or a mark 3.
double contrast(const QColor& one, const QColor& other);

}  // namespace nautrel
