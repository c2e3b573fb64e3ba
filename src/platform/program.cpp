// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/program.h"

#include <algorithm>

namespace nautrel {

Program::Program(Desktop& desktop) : desktop_(desktop) {
  desktop_.beforeBox = [this] {
    settle();
    if (looks_ != nullptr) looks_->flush();
  };
}

Program::~Program() {
  desktop_.beforeBox = nullptr;
  destroyWindows();
}

void Program::destroyWindows() {
  unloaded_.clear();
  windows_.clear();
}

void Program::asRoot(const std::function<void()>& procedure) {
  try {
    procedure();
  } catch (const RunTimeError& failure) {
    desktop_.end(failure);
    throw ProgramEnd{};
  }
}

void Program::load(int number, std::unique_ptr<Form> made) {
  auto& form = *made;
  windows_[number] = std::move(made);
  form.number_ = number;
  form.loaded_ = true;
  if (looks_ != nullptr) form.look_ = looks_->make(form);
  asRoot([&] {
    form.Form_Load();
    if (form.loaded_) form.openDataControls();
  });
}

void Program::unload(int number) {
  const auto it = windows_.find(number);
  if (it == windows_.end() || it->second->unloading_) return;
  auto& form = *it->second;
  form.unloading_ = true;
  asRoot([&] { form.Form_Unload(); });
  form.loaded_ = false;
  form.visible_ = false;
  leaveStack(form);
  if (form.look_) form.look_->close();
  unloaded_.push_back(std::move(windows_.at(number)));
  windows_.erase(number);
}

void Program::bringToFront(Form& form) {
  if (front_ == &form) return;
  front_ = &form;
  std::erase(stack_, &form);
  stack_.push_back(&form);
}

// One that is minimized comes to the front only if there is no other.
void Program::giveWay(const Form& form) {
  if (front_ != &form) return;
  const auto next = std::find_if(stack_.rbegin(), stack_.rend(), [](const Form* other) {
    return other->windowState() != WindowState::Minimized;
  });
  if (next != stack_.rend()) return (*next)->activate();
  if (std::find(stack_.begin(), stack_.end(), &form) != stack_.end()) return;
  front_ = nullptr;
  if (!stack_.empty()) stack_.back()->activate();
}

void Program::leaveStack(const Form& form) {
  std::erase(stack_, &form);
  giveWay(form);
}

void Program::userCloseWindow() {
  if (front_ != nullptr) front_->userClose();
}

void Program::userNextWindow(int direction) {
  std::vector<Form*> round;
  for (const auto& [number, form] : windows_)
    if (form->isChild() && form->visible() && form->windowState() != WindowState::Minimized)
      round.push_back(form.get());
  if (round.empty()) return;
  const auto size = static_cast<int>(round.size());
  const auto here = static_cast<int>(std::find(round.begin(), round.end(), front_) - round.begin());
  const int from = here < size ? here : (direction > 0 ? -1 : 0);
  round[static_cast<std::size_t>((from + direction + size) % size)]->userActivated();
}

Form* Program::ifLoaded(int number) const {
  const auto it = windows_.find(number);
  return it == windows_.end() ? nullptr : it->second.get();
}

void Program::leave() {
  if (--depth_ > 0) return;
  desktop_.atEdge([this] { settle(); });
  desktop_.atEdge([this] {
    unloaded_.clear();
    if (looks_ != nullptr) looks_->flush();
  });
}

}  // namespace nautrel
