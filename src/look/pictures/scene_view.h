// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>
#include <vector>

#include "look/bindings/binding.h"
#include "look/bindings/spoken.h"
#include "platform/drawing.h"

namespace nautrel {

/// Paints a picture of figures, at any scale of the screen as sharp as the screen is. What reaches
/// beyond the frame is cut off. What is written in the picture is told to those who cannot see it.
class SceneView : public QWidget, public Spoken {
  Q_OBJECT

 public:
  using QWidget::QWidget;

  /// The part of the picture, in twips, that fills the widget.
  void setFrame(const QRectF& frame) { frame_ = frame; }
  void setFigures(std::vector<Figure> figures);

  QAccessible::Role spokenRole() const override { return QAccessible::Graphic; }
  QString spokenValue() const override;

 protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString fitting(const Figure& text) const;
  QRectF place(const Figure& figure) const;
  void draw(QPainter& painter, const Figure& figure) const;

  QRectF frame_;
  std::vector<Figure> figures_;
};

/// A picture has one widget, named as one of its drawings, whose extent is what the widget shows.
class SceneBinding : public Binding {
 public:
  SceneBinding(Drawing& frame, SceneView& view);
  bool shows(const Control& control) const override;

 protected:
  void pushContent() override;

 private:
  Drawing& frame_;
  SceneView& view_;
};

}  // namespace nautrel
