// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/control.h"

#include "platform/errors.h"
#include "platform/form.h"
#include "platform/look.h"

namespace nautrel {

Control::Control(Form& form, std::string name) : form_(form), name_(std::move(name)) {
  form_.add(*this);
}

void Control::setEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  changed();
  if (!enabled) form_.leaveIfUnfit(*this);
}

void Control::setVisible(bool visible) {
  if (visible_ == visible) return;
  visible_ = visible;
  changed();
  if (!visible) form_.leaveIfUnfit(*this);
}

void Control::setHint(std::string hint) {
  if (hint_ == hint) return;
  hint_ = std::move(hint);
  changed();
}

bool Control::shows() const {
  if (!visible_) return false;
  return container_ == nullptr || (container_->shows() && container_->showsPage(page_));
}

void Control::SetFocus() {
  if (!takesFocus() || !enabled_ || !visible_ || !form_.visible()) raise(InvalidCall);
  if (!shows()) return;
  form_.activate();
  form_.moveFocus(*this);
}

bool Control::hasFocus() const {
  return form_.activeControl() == this;
}

void Control::Refresh() {
  if (auto* look = form_.look()) look->refresh(*this);
}

void Control::setContainer(const Control& container, int page) {
  container_ = &container;
  page_ = page;
}

void Control::changed() {
  if (auto* look = form_.look()) look->controlChanged(*this);
}

bool Control::takeFocus() {
  form_.moveFocus(*this);
  return hasFocus();
}

}  // namespace nautrel
