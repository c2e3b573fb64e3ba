// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>
#include <string_view>

namespace nautrel {

/// The content of a window, as its Designer file lays it out.
QWidget* makeContent(std::string_view form);
/// Whether the user may size the window.
bool isSizable(std::string_view form);

}  // namespace nautrel
