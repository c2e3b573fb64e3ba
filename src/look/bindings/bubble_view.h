// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

namespace nautrel {

/// A bubble of air, as large as the widget; presses go through it.
class BubbleView : public QWidget {
  Q_OBJECT

 public:
  explicit BubbleView(QWidget* parent = nullptr);

 protected:
  void paintEvent(QPaintEvent* event) override;
};

}  // namespace nautrel
