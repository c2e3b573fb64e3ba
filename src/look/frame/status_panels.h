// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QLabel>
#include <QTimer>
#include <QWidget>

#include "platform/frame.h"

namespace nautrel {

/// The five panels. Caps Lock, Insert, date and time are kept here, as a control keeps them.
class StatusPanels : public QWidget {
 public:
  explicit StatusPanels(const StatusBar& model, QWidget* parent = nullptr);

  void setText(const QString& text);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QLabel* addPanel(int panel, int stretch);
  void tick();
  void showState(QLabel& panel, bool on) const;

  const StatusBar& model_;
  QLabel* caps_;
  QLabel* insert_;
  QLabel* text_;
  QLabel* date_;
  QLabel* time_;
  QTimer timer_;
  bool insertOn_ = false;
  ulong lastInsert_ = 0;
};

/// Whether Caps Lock is on, as the system keeps it.
bool capsLockIsOn();

}  // namespace nautrel
