// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>
#include <memory>

#include "look/bindings/spoken.h"
#include "look/charts/chart_data.h"
#include "look/charts/chart_space.h"
#include "look/edge.h"

class QHelpEvent;
class QMimeData;

namespace nautrel {

/// One series as bars or a line, flat or in space. A chart in space that may be turned follows the
/// mouse while Ctrl is held. Pointing at a row tells its value.
class ChartWidget : public QWidget, public Spoken {
  Q_OBJECT

 public:
  explicit ChartWidget(QWidget* parent = nullptr);

  const ChartData& data() const { return data_; }
  void setData(ChartData data);

  /// The chart as a picture on white paper, whatever the desktop's colours, and its rows as
  /// tab-separated text.
  std::unique_ptr<QMimeData> copy() const;

  /// Around all painting and pointing.
  Edge edge = [](const auto& step) { step(); };

  QAccessible::Role spokenRole() const override { return QAccessible::Chart; }
  QString spokenValue() const override { return describe(data_); }

  QSize sizeHint() const override { return {700, 390}; }
  QSize minimumSizeHint() const override { return {300, 200}; }

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  void paint(QPaintDevice* device, const QPalette& palette) const;
  void tellRow(const QHelpEvent& event) const;
  void turnBy(QPointF distance);

  ChartData data_;
  ChartTurn turn_;
  QPointF grip_;
  bool turning_ = false;
};

}  // namespace nautrel
