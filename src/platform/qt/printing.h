#pragma once

#include <string>

#include "platform/desktop.h"

class QWidget;

namespace nautrel {

/// Lets the user choose the printer and its paper for all that is printed from then on. False if
/// he cancels.
bool setUpPrinterDialog(QWidget* parent);

}  // namespace nautrel
