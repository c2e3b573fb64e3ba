// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/frame/splash_window.h"

#include "look/convert.h"
#include "look/pictures/icons.h"

namespace nautrel {

SplashWindow::SplashWindow(QtLooks& looks, Form& form)
    : FormView(looks, form), picture_(new QLabel) {
  picture_->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
  picture_->setWindowTitle(toQt(form.caption()));
  picture_->setAccessibleName(QStringLiteral("Nautrel 2.0 is starting"));
  picture_->setPixmap(namedPicture(QStringLiteral("splash")));
  picture_->adjustSize();
  form.setWidth(toTwips(picture_->width()));
  form.setHeight(toTwips(picture_->height()));
}

SplashWindow::~SplashWindow() {
  close();
}

QWidget* SplashWindow::root() const {
  return picture_;
}

void SplashWindow::show() {
  flush();
  picture_->show();
  startTimers();
}

void SplashWindow::close() {
  if (!picture_) return;
  releaseBindings();
  picture_->hide();
  picture_->deleteLater();
  picture_ = nullptr;
}

void SplashWindow::pushForm() {
  if (picture_) picture_->move(toPixels(form().Left()), toPixels(form().Top()));
}

}  // namespace nautrel
