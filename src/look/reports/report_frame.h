// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QRectF>
#include <QString>

#include "printing/report_document.h"

class QPainter;

namespace nautrel {

/// Title and range above the pages of a report, and the foot with the page's number below them. The
/// first page has the title large.
class PageFrame {
 public:
  /// `body` is what the margins leave of the sheet, in twips.
  PageFrame(ReportFrame texts, const QRectF& body);

  /// What it leaves of the body on a page, counted from 0.
  QRectF room(int page) const;
  void paint(QPainter& painter, int page, int pages) const;

 private:
  struct Head {
    double titleSize = 0;  // points
    double subtitleSize = 0;
    bool below = false;  // the subtitle has a line of its own
    double height = 0;   // without the gap below the rule
  };

  Head headOf(double titleSize, double subtitleSize, bool mayGrow) const;
  const Head& head(int page) const { return page == 0 ? first_ : running_; }
  bool hasHead() const { return !title_.isEmpty() || !subtitle_.isEmpty(); }
  void paintHead(QPainter& painter, int page) const;
  void paintFoot(QPainter& painter, const QString& text) const;

  ReportFrame texts_;
  QString title_;
  QString subtitle_;
  QRectF body_;
  Head first_;
  Head running_;
};

}  // namespace nautrel
