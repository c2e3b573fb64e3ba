// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

#include "look/bindings/spoken.h"
#include "platform/picture.h"

namespace nautrel {

/// Shows a picture as large as it fits, in its own proportions. `designPicture`, a property of the
/// form's design, names the picture that it shows as long as no rule has given it one.
class PictureView : public QWidget, public Spoken {
  Q_OBJECT
  Q_PROPERTY(QString designPicture READ designPicture WRITE setDesignPicture)

 public:
  using QWidget::QWidget;

  QString designPicture() const { return design_; }
  void setDesignPicture(const QString& name);
  void setPicture(const Picture& picture);
  QSize sizeHint() const override;

  QAccessible::Role spokenRole() const override { return QAccessible::Graphic; }
  QString spokenValue() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString design_;
  Picture picture_;
};

}  // namespace nautrel
