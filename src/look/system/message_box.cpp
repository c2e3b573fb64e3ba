// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/system/message_box.h"

#include <QCloseEvent>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

#include "look/frame/window_place.h"
#include "platform/desktop.h"

namespace nautrel {
namespace {

constexpr int kYesNo = 4;
constexpr int kButtons = 0x0F;
constexpr int kIcons = 0xF0;
constexpr int kSecondDefault = 256;
constexpr int kLeastWidth = 220;    // pixels
constexpr int kTitleButtons = 140;  // what a desktop puts beside a title

/// Neither Esc nor the close box answers a question.
class Question : public QMessageBox {
 public:
  using QMessageBox::QMessageBox;

 protected:
  void closeEvent(QCloseEvent* event) override { event->ignore(); }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() != Qt::Key_Escape) QMessageBox::keyPressEvent(event);
  }
  void reject() override {}
};

QMessageBox::Icon icon(int style) {
  switch (style & kIcons) {
    case 16:
      return QMessageBox::Critical;
    case 32:
      return QMessageBox::Question;
    case 48:
      return QMessageBox::Warning;
    case 64:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

/// As wide as its title needs, which tells as much as the prompt in some questions.
void giveTitleRoom(QMessageBox& box, const QString& title) {
  auto* grid = qobject_cast<QGridLayout*>(box.layout());
  if (grid == nullptr) return;
  const int width = qMax(kLeastWidth, box.fontMetrics().horizontalAdvance(title) + kTitleButtons);
  grid->addItem(new QSpacerItem(width, 0), grid->rowCount(), 0, 1, grid->columnCount());
}

void prepare(QMessageBox& box, const QString& prompt, int style, const QString& title) {
  box.setWindowTitle(title);
  box.setTextFormat(Qt::PlainText);
  box.setText(prompt);
  box.setIcon(icon(style));
  giveTitleRoom(box, title);
}

}  // namespace

int showMessageBox(QWidget* parent, const QString& prompt, int style, const QString& title) {
  if ((style & kButtons) != kYesNo) {
    QMessageBox box(parent);
    prepare(box, prompt, style, title);
    frameDialog(box);
    box.setStandardButtons(QMessageBox::Ok);
    box.exec();
    return kOk;
  }
  Question box(parent);
  prepare(box, prompt, style, title);
  frameDialog(box, false);
  box.setStandardButtons(QMessageBox::Yes | QMessageBox::No);
  box.setDefaultButton((style & kSecondDefault) != 0 ? QMessageBox::No : QMessageBox::Yes);
  box.exec();
  return box.clickedButton() == box.button(QMessageBox::Yes) ? kYes : kNo;
}

}  // namespace nautrel
