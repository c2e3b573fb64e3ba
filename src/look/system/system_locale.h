// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLocale>

#include "platform/text.h"

namespace nautrel {

/// What the toolkit's locale says, in the forms of the core. Times lose their zone.
Locale localeOf(const QLocale& system);

}  // namespace nautrel
