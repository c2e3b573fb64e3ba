// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QPoint>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <functional>
#include <iterator>
#include <random>
#include <sstream>

#include "look/frame/qt_looks.h"
#include "platform/program.h"

namespace nautrel {

class Dice {
 public:
  explicit Dice(unsigned seed) : engine_(seed) {}
  int below(int count) { return static_cast<int>(engine_() % static_cast<unsigned>(count)); }
  bool oneIn(int count) { return below(count) == 0; }
  template <class Values>
  auto& of(Values&& values) {
    return *std::next(std::begin(values), below(static_cast<int>(std::size(values))));
  }

 private:
  std::mt19937 engine_;
};

/// What hands do by chance at the screen of a program. Each step has its own chances, so that
/// leaving one out changes nothing of the others.
class Hands {
 public:
  Hands(Program& program, QtLooks& looks);

  /// To be called before a step.
  void begin(unsigned chances);
  /// A press, a key, a text typed, or one that comes in by another way than the keyboard.
  /// @{
  void mouse();
  void key();
  void type();
  void bring();
  /// @}
  /// The step has ended.
  void end() { loops_.stop(); }

  Dice dice{0};
  std::ostringstream did;  // in the last step

 private:
  void breakLoops();
  void drop(QWindow& top, QPoint place, const QString& text);
  QWidget& target();
  QPoint placeIn(const QWidget& widget);
  QWindow* window() { return looks_.topWindow()->windowHandle(); }

  Program& program_;
  QtLooks& looks_;
  std::function<void()> letGo_;  // releases the mouse
  QTimer loops_;
};

}  // namespace nautrel
