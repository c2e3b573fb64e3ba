// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/bindings/spoken.h"

#include <QAccessibleWidget>

#include <QWidget>
namespace nautrel {
namespace {

class SpokenWidget : public QAccessibleWidget {
 public:
  SpokenWidget(QWidget& widget, Spoken& spoken)
      : QAccessibleWidget(&widget, spoken.spokenRole()), spoken_(spoken) {}

  // Not every system hands a value on where none can be set; all of them do so with a description.
  QString text(QAccessible::Text kind) const override {
    const auto own = QAccessibleWidget::text(kind);
    const bool tells = kind == QAccessible::Value || kind == QAccessible::Description;
    return tells && own.isEmpty() ? spoken_.spokenValue() : own;
  }
  QStringList actionNames() const override {
    return spoken_.spokenActions() + QAccessibleWidget::actionNames();
  }
  void doAction(const QString& action) override {
    if (spoken_.spokenActions().contains(action) && widget()->isEnabled())
      spoken_.doSpoken(action);
    else
      QAccessibleWidget::doAction(action);
  }

 private:
  Spoken& spoken_;
};

QAccessibleInterface* speak(const QString&, QObject* object) {
  auto* spoken = dynamic_cast<Spoken*>(object);
  return spoken == nullptr ? nullptr : new SpokenWidget(*static_cast<QWidget*>(object), *spoken);
}

}  // namespace

void letWidgetsSpeak() {
  QAccessible::installFactory(speak);
}

}  // namespace nautrel
