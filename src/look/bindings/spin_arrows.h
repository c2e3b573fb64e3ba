// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>
#include <functional>

class QToolButton;

namespace nautrel {

/// Two arrows, one above the other, that repeat while they are held. The arrow keys work too.
class SpinArrows : public QWidget {
 public:
  explicit SpinArrows(QWidget* parent = nullptr);

  std::function<void(bool up)> stepped;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QToolButton* arrow(Qt::ArrowType type, bool up);
  void step(bool up) const;
};

}  // namespace nautrel
