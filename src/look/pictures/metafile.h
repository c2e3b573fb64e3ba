// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QByteArray>
#include <QImage>
#include <QRect>
#include <QSize>
#include <optional>

namespace nautrel {

enum class MetafileKind { None, Windows, Enhanced };

/// Tells by the first bytes whether this is a metafile at all.
MetafileKind metafileKind(const QByteArray& head);

/// The size that the metafile's header states, in pixels of a 96 dpi screen; empty if it states
/// none.
QSize metafileSize(const QByteArray& bytes, MetafileKind kind);

/// The length of the placeable header before a Windows metafile's own; 0 if it has none.
qsizetype placeableLength(const QByteArray& bytes);

/// The part of its plane that a Windows metafile shows, in its own units: what the placeable header
/// says or else the first record that does. A negative extent counts upwards or to the left.
std::optional<QRect> metafileWindow(const QByteArray& bytes);

/// Draws on white paper, as large as `largest` holds in the metafile's own proportions. A null
/// image for what cannot be drawn. Each system has its own way to do it.
QImage drawMetafile(const QByteArray& bytes, MetafileKind kind, QSize largest);

}  // namespace nautrel
