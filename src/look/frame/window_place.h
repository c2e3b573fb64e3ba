// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QList>
#include <QRect>

class QDialog;
class QScreen;

namespace nautrel {

/// Where a main window is to be shown: where it wants to be, unless its title bar would lie on none
/// of the screens or it is larger than all of them together; then inside the nearest one.
QRect pulledBack(const QRect& window, const QList<QRect>& screens);

/// The largest window whose frame still stays on the screen.
QSize roomOn(const QScreen& screen);
/// Makes a dialog no larger than that, even one whose contents ask for more.
void fitInto(const QSize& room, QDialog& dialog);
/// The same for one that cannot shrink: what finds no room is scrolled to.
void scrollInto(const QSize& room, QDialog& dialog);
/// A title, and a close box where it may be closed; nothing to minimize or maximize it by.
void frameDialog(QDialog& dialog, bool closable = true);

}  // namespace nautrel
