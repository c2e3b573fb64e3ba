// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include "platform/desktop.h"

class QWidget;

namespace nautrel {

/// Does the work on a thread of its own. If it takes longer than a moment, a box tells what is done
/// and how far it is, and as soon as the work asks, that it can be stopped.
void doLongWork(QWidget* parent, const QString& what, const LongWork& work);

}  // namespace nautrel
