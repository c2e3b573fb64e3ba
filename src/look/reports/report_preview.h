// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>
#include <functional>

#include "look/edge.h"

class QComboBox;
class QLabel;
class QScrollArea;
class QSpinBox;
class QToolBar;

namespace nautrel {

class PagesView;
class ReportPages;

/// A report on the screen: leafing, zoom, printing, saving as PDF. Pages are painted when they come
/// into view.
class ReportPreview : public QDialog {
 public:
  ReportPreview(const ReportPages& pages, const QString& title, QWidget* parent);

  /// Called by "Print...".
  std::function<void()> print;
  /// Called by "Save as PDF...".
  std::function<void()> save;
  /// Around the painting of the pages.
  void setEdge(Edge edge);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QToolBar* makeToolBar();
  void addLeafing(QToolBar& bar);
  void addZoom(QToolBar& bar);
  void addKeys();
  void fitScreen();
  Qt::ScrollBarPolicy scrollBarFor(int choice) const;
  void applyZoom();
  void stepZoom(int direction);
  void turnWheel(int angle);
  void showPage(int page);
  void leaf(int direction);
  void followScrolling();

  const ReportPages& pages_;
  QScrollArea* area_;
  PagesView* view_;
  QSpinBox* page_ = nullptr;
  QComboBox* zoom_ = nullptr;
  int wheel_ = 0;  // what is left of its turning, in eighths of a degree
};

}  // namespace nautrel
