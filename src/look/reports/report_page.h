// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTextDocument>
#include <optional>

#include "look/reports/report_frame.h"
#include "look/reports/report_pages.h"

namespace nautrel {

/// The text of a page. Its pictures come from one folder, and nothing else does.
class PageText : public QTextDocument {
 public:
  explicit PageText(const QString& folder) : folder_(folder) {}

  /// Why a picture could not be shown.
  const std::optional<ReportFault>& fault() const { return fault_; }

 protected:
  QVariant loadResource(int type, const QUrl& name) override;

 private:
  QString folder_;
  std::optional<ReportFault> fault_;
};

/// A report of HTML, broken over pages by the text engine; what follows a heading stays with it.
class ReportPage : public ReportPages {
 public:
  /// Raises ReportFault if it names a picture that it may not show.
  ReportPage(PageReport report, const QPageLayout& paper);

  int count() const override { return text_.pageCount(); }
  void paint(QPainter& painter, int page) const override;

 private:
  void keepGroups();

  PageFrame frame_;
  QRectF room_;
  PageText text_;
};

}  // namespace nautrel
