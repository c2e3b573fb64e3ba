// SPDX-License-Identifier: GPL-2.0-or-later
#include "platform/form.h"

#include <algorithm>

#include "platform/controls.h"
#include "platform/look.h"
#include "platform/program.h"

namespace nautrel {

Form::Form(Program& program, std::string name, Design design)
    : program_(program),
      name_(std::move(name)),
      caption_(std::move(design.caption)),
      width_(design.width),
      height_(design.height),
      child_(design.child) {}

Form::~Form() = default;

void Form::Show() {
  if (!loaded_ || unloading_) return;
  const bool first = !visible_;
  visible_ = true;
  if (look_) look_->show();
  activate();
  if (!first) return;
  Form_Resize();
  if (loaded_ && active_ == nullptr && !tabOrder_.empty()) focusNext(*tabOrder_.front(), 0);
}

void Form::SetFocus() {
  if (!visible_) raise(InvalidCall);
  activate();
}

void Form::Unload() {
  if (loaded_) program_.unload(number_);
}

void Form::setCaption(std::string caption) {
  if (caption_ == caption) return;
  caption_ = std::move(caption);
  notifyLook();
}

void Form::setEnabled(bool enabled) {
  enabled_ = enabled;
  notifyLook();
}

// Who is minimized gives way to the window behind, and who is restored comes to the front.
void Form::setWindowState(WindowState state) {
  if (state_ == state) return;
  const bool restored = state_ == WindowState::Minimized;
  state_ = state;
  notifyLook();
  if (!visible_) return;
  if (restored) return activate();
  if (state == WindowState::Minimized) program_.giveWay(*this);
}

namespace {

// As much of a title bar, in twips, as can be taken hold of.
constexpr double kTitleBar = 400;

}  // namespace

double Form::inSight(double edge, double room) const {
  return child_ && (edge < 0 || (room > 0 && edge > room - kTitleBar)) ? 0 : edge;
}

void Form::setLeft(double left) {
  left_ = inSight(left, program_.area().width);
  notifyLook();
}

void Form::setTop(double top) {
  top_ = inSight(top, program_.area().height);
  notifyLook();
}

void Form::setWidth(double width) {
  if (width_ == width) return;
  width_ = width;
  notifyLook();
  if (visible_) Form_Resize();
}

void Form::setHeight(double height) {
  if (height_ == height) return;
  height_ = height;
  notifyLook();
  if (visible_) Form_Resize();
}

Control* Form::control(std::string_view name) const {
  const auto it = std::find_if(controls_.begin(), controls_.end(),
                               [&](const Control* control) { return control->name() == name; });
  return it == controls_.end() ? nullptr : *it;
}

void Form::add(Control& control) {
  controls_.push_back(&control);
  tabOrder_.push_back(&control);
}

void Form::setTabOrder(std::initializer_list<Control*> order) {
  std::vector<Control*> ordered(order);
  for (auto* control : tabOrder_)
    if (std::find(ordered.begin(), ordered.end(), control) == ordered.end())
      ordered.push_back(control);
  tabOrder_ = std::move(ordered);
}

void Form::setTabEnd(std::initializer_list<Control*> last) {
  for (auto* control : last) {
    std::erase(tabOrder_, control);
    tabOrder_.push_back(control);
  }
}

Button* Form::enterButton() const {
  auto* focused = dynamic_cast<Button*>(active_);
  return focused != nullptr ? focused : default_;
}

bool Form::wantsEnter() const {
  const auto* box = dynamic_cast<TextBox*>(active_);
  return default_ == nullptr && box != nullptr && box->multiLine();
}

void Form::openDataControls() {
  for (auto* control : controls_)
    if (auto* data = dynamic_cast<Navigator*>(control)) data->open();
}

void Form::activate() {
  if (!child_) return;
  program_.bringToFront(*this);
  notifyLook();
}

void Form::notifyLook() {
  if (look_) look_->formChanged();
}

// The focus counts as moved before the old control's LostFocus runs. A rule in there may move it
// again; the control that was about to get it then never had it, and none of its rules run.
void Form::moveFocus(Control& target) {
  if (active_ == &target && !arriving_) return;
  Control* leaving = arriving_ ? nullptr : active_;
  active_ = &target;
  arriving_ = true;
  const unsigned move = ++focusMoves_;
  if (leaving != nullptr) raiseEvent(leaving->LostFocus);
  if (move != focusMoves_) return;
  arriving_ = false;
  notifyLook();
  raiseEvent(target.GotFocus);
}

void Form::focusNext(const Control& from, int direction) {
  const auto size = static_cast<int>(tabOrder_.size());
  const auto here =
      static_cast<int>(std::find(tabOrder_.begin(), tabOrder_.end(), &from) - tabOrder_.begin());
  const int step = direction < 0 ? -1 : 1;
  for (int i = direction == 0 ? 0 : 1; i <= size; ++i) {
    auto* next = tabOrder_[static_cast<std::size_t>((here + step * i + size * 2) % size)];
    if (next->canTakeFocus() && next->tabStop()) return moveFocus(*next);
  }
}

void Form::leaveIfUnfit(const Control& control) {
  if (active_ == nullptr || active_->canTakeFocus()) return;
  const Control* held = active_;
  if (held != &control && held->shows() && held->enabled()) return;
  focusNext(*held, 1);
  if (active_ == held) active_ = nullptr;
  notifyLook();
}

namespace {

void press(const Button& button) {
  if (button.enabled() && button.visible()) raiseEvent(button.Click);
}

}  // namespace

void Form::userFocus(Control& control) {
  program_.handle([&] {
    if (enabled_ && visible_ && control.canTakeFocus()) {
      activate();
      moveFocus(control);
    }
    notifyLook();
  });
}

Control* Form::accessOwner(std::string_view character) const {
  const auto behind = std::find(tabOrder_.begin(), tabOrder_.end(), active_);
  std::vector<Control*> order(behind, tabOrder_.end());
  order.insert(order.end(), tabOrder_.begin(), behind);
  if (order.front() == active_) std::rotate(order.begin(), order.begin() + 1, order.end());
  const auto it = std::find_if(order.begin(), order.end(), [&](const Control* control) {
    return control->answersAccessKey(character);
  });
  return it == order.end() ? nullptr : *it;
}

bool Form::answersAccessKey(std::string_view character) const {
  return enabled_ && visible_ && accessOwner(character) != nullptr;
}

bool Form::userAccessKey(std::string_view character) {
  if (!answersAccessKey(character)) return false;
  accessOwner(character)->userAccess();
  return true;
}

void Form::userTurnPage(int direction) {
  for (auto* control : controls_) {
    auto* strip = dynamic_cast<TabStrip*>(control);
    if (strip == nullptr || !strip->canTakeFocus()) continue;
    const auto pages = static_cast<int>(strip->captions().size());
    return strip->userTab((strip->Tab() + direction + pages) % pages);
  }
}

void Form::userKey(Key key) {
  program_.handle([&] {
    if (!enabled_ || !visible_) return;
    auto* focused = active_;
    auto* box = dynamic_cast<TextBox*>(focused);
    switch (key) {
      case Key::Enter:
        if (const auto* button = enterButton()) return press(*button);
        if (wantsEnter()) box->userInsert("\n");
        return;
      case Key::Escape:
        if (cancel_ != nullptr) press(*cancel_);
        return;
      case Key::Tab:
      case Key::BackTab:
        if (focused != nullptr) focusNext(*focused, key == Key::Tab ? 1 : -1);
        return;
      case Key::Backspace:
        if (box != nullptr) box->userBackspace();
        return;
      case Key::Delete:
        if (box != nullptr) box->userDelete();
        return;
      case Key::Up:
      case Key::Down:
        if (auto* option = dynamic_cast<OptionButton*>(focused))
          option->userArrow(key == Key::Down ? 1 : -1);
        else if (auto* spin = dynamic_cast<SpinButton*>(focused))
          spin->userSpin(key == Key::Up);
        else if (auto* list = dynamic_cast<ListBox*>(focused))
          list->userMove(key == Key::Down ? 1 : -1);
        return;
      case Key::Space:
        if (auto* button = dynamic_cast<Button*>(focused)) button->userClick();
        if (auto* check = dynamic_cast<CheckBox*>(focused)) check->userClick();
        if (auto* option = dynamic_cast<OptionButton*>(focused)) option->userClick();
        if (auto* picture = dynamic_cast<PictureBox*>(focused)) picture->userClick();
        return;
    }
  });
}

void Form::userType(std::string_view typed) {
  program_.handle([&] {
    if (!enabled_ || !visible_) return;
    if (auto* box = dynamic_cast<TextBox*>(active_)) return box->userInsert(typed);
    if (auto* combo = dynamic_cast<ComboBox*>(active_))
      combo->userReplace(characters(combo->text()), 0, typed);
  });
}

void Form::userClose() {
  program_.handle([this] { Unload(); });
}

void Form::userResized(double left, double top, double width, double height) {
  program_.handle([&] {
    const bool resized = width != width_ || height != height_;
    left_ = left;
    top_ = top;
    width_ = width;
    height_ = height;
    if (resized && visible_) Form_Resize();
  });
}

void Form::userState(WindowState state) {
  program_.handle([&] { setWindowState(state); });
}

void Form::userActivated() {
  program_.handle([this] {
    if (visible_) activate();
  });
}

Desktop& Form::desktop() const {
  return program_.desktop();
}
const Locale& Form::locale() const {
  return desktop().locale();
}

int Form::MsgBox(const std::string& prompt, int style, const std::string& title) {
  return desktop().MsgBox(prompt, style, title);
}

double Form::number(std::string_view text) const {
  return readNumber(text, locale());
}

std::optional<double> Form::tryNumber(std::string_view text) const {
  return nautrel::tryNumber(text, locale());
}

std::string Form::text(double number) const {
  return generalText(number, locale());
}

}  // namespace nautrel
