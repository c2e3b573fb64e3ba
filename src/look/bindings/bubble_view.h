// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

#include "look/bindings/spoken.h"

namespace nautrel {

/// A bubble of air, as large as the widget; presses go through it.
class BubbleView : public QWidget, public Spoken {
  Q_OBJECT

 public:
  explicit BubbleView(QWidget* parent = nullptr);

  QAccessible::Role spokenRole() const override { return QAccessible::Graphic; }
  QString spokenValue() const override { return {}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace nautrel
