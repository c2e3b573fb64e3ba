// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>

namespace nautrel {

/// A label for a figure. One that is too long for it is elided, so that no part of it passes for
/// another figure, and told whole in a tool tip.
class ResultLabel : public QLabel {
  Q_OBJECT
 public:
  using QLabel::QLabel;
  QSize minimumSizeHint() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString fitting() const;
};

}  // namespace nautrel
