// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

class QWidget;

namespace nautrel {

/// A message box by the system's numeric style; returns the system's number of the answer. A
/// Yes/No box is left by an answer alone.
int showMessageBox(QWidget* parent, const QString& prompt, int style, const QString& title);

}  // namespace nautrel
