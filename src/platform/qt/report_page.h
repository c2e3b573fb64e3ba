#pragma once

#include <QTextDocument>

#include "platform/qt/report_pages.h"

namespace nautrel {

/// A report of HTML, broken over pages by the text engine.
class ReportPage : public ReportPages {
 public:
  ReportPage(const PageReport& report, const QPageLayout& paper);

  int count() const override { return text_.pageCount(); }
  void paint(QPainter& painter, int page) const override;

 private:
  QTextDocument text_;
};

}  // namespace nautrel
