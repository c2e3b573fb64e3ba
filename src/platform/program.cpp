#include "platform/program.h"

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
  if (active_ == &form) active_ = nullptr;
  if (form.look_) form.look_->close();
  unloaded_.push_back(std::move(windows_.at(number)));
  windows_.erase(number);
}

Form* Program::ifLoaded(int number) const {
  const auto it = windows_.find(number);
  return it == windows_.end() ? nullptr : it->second.get();
}

std::vector<Form*> Program::loadedForms() const {
  std::vector<Form*> forms;
  for (const auto& [number, form] : windows_) forms.push_back(form.get());
  return forms;
}

void Program::leave() {
  if (--depth_ > 0) return;
  settleAtEdge();
  unloaded_.clear();
  if (looks_ != nullptr) looks_->flush();
}

void Program::settleAtEdge() {
  try {
    settle();
  } catch (const RunTimeError& failure) {
    desktop_.end(failure);
  }
}

}  // namespace nautrel
