// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QAccessible>
#include <QStringList>

namespace nautrel {

/// What a widget of the look's own is to a screen reader, besides the name that its design gives
/// it. Whatever widget derives from it is spoken so, once letWidgetsSpeak() has been called.
class Spoken {
 public:
  virtual ~Spoken() = default;

  virtual QAccessible::Role spokenRole() const = 0;
  virtual QString spokenValue() const = 0;
  /// What an assistive tool may do to it, by the names of QAccessibleActionInterface.
  virtual QStringList spokenActions() const { return {}; }
  virtual void doSpoken(const QString& /*action*/) {}
};

void letWidgetsSpeak();

}  // namespace nautrel
