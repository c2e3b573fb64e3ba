// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QElapsedTimer>
#include <QListView>
#include <functional>

namespace nautrel {

/// A list of lines in a window's design. It tells what the user does to it and moves its highlight
/// by none of it: that follows the lines' owner alone.
class ListView : public QListView {
 public:
  explicit ListView(QWidget* parent = nullptr);

  /// Rows count from 0; -1 is where no row is.
  std::function<void(int row)> pressed;
  std::function<void(int row)> doubleClicked;
  std::function<void(int by)> moved;
  std::function<void(const QString& beginning, bool further)> typed;

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  int rowAt(const QMouseEvent& event) const;
  int linesToMove(int key) const;
  void type(const QString& text);

  QString beginning_;
  QElapsedTimer sinceTyped_;
};

}  // namespace nautrel
