// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QImage>
#include <QString>
#include <QUrl>

namespace nautrel {

/// Loads a picture that a template names: a file (bmp, gif, jpg, png) in the folder or below it,
/// or one that stands in the template itself. Raises ReportFault for everything else.
QImage loadTemplatePicture(const QString& folder, const QUrl& name);

}  // namespace nautrel
