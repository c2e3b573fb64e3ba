// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>

namespace nautrel {

/// What a metafile draws, as SVG; empty if it cannot be read. The libraries trust their input: to
/// be called in a process apart only.
/// @{
QByteArray svgOfWindowsMetafile(QByteArray bytes);
QByteArray svgOfEnhancedMetafile(QByteArray bytes);
/// @}

}  // namespace nautrel
