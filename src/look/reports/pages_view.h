// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

#include "look/bindings/spoken.h"
#include "look/edge.h"

namespace nautrel {

class ReportPages;

/// The pages of a report below each other, painted as they come into view.
class PagesView : public QWidget, public Spoken {
 public:
  PagesView(const ReportPages& pages, QWidget* parent);

  /// 1 shows the paper in its own size.
  double zoom() const { return zoom_; }
  void setZoom(double zoom);
  /// The largest zoom at which a page fits into the room.
  void fit(const QSize& room);
  /// Pages count from 0; `topOf` is where the view scrolls to show one.
  int topOf(int page) const;
  int pageAt(int y) const;

  QAccessible::Role spokenRole() const override { return QAccessible::Document; }
  QString spokenValue() const override;

  /// Around all painting.
  Edge edge = [](const auto& step) { step(); };

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  double pixelsPerTwip() const;
  QSizeF sheet() const;
  void paintSheets(const QRect& shown);
  void paintSheet(QPainter& painter, int page) const;

  const ReportPages& pages_;
  double zoom_ = 1;
};

}  // namespace nautrel
