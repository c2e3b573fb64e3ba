// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"
#include "platform/picture.h"

namespace nautrel {

/// A control with a caption. The character behind an & in it is its access key.
class Captioned : public Control {
 public:
  Captioned(Form& form, std::string name, std::string caption = {});
  const std::string& caption() const { return caption_; }
  void setCaption(std::string caption);
  bool answersAccessKey(std::string_view character) const override;

 private:
  std::string caption_;
};

/// A text on the window that a rule reads or writes.
class Label : public Captioned {
 public:
  using Captioned::Captioned;
};

/// Holds other controls; the options in one frame are exclusive.
class Frame : public Label {
 public:
  using Label::Label;
  Frame& holds(std::initializer_list<Control*> controls);
};

/// A box of text. Positions and lengths count characters.
class TextBox : public Control {
 public:
  struct Design {
    std::string text = {};
    std::size_t maxLength = 0;  // 0: no limit
    bool locked = false;        // blocks typing alone
    bool multiLine = false;
    bool visible = true;
  };
  TextBox(Form& form, std::string name, Design design);
  TextBox(Form& form, std::string name) : TextBox(form, std::move(name), Design{}) {}

  const std::string& text() const { return text_; }
  /// An assignment that really changes the text raises Change; a longer text than the box takes
  /// loses its tail.
  void setText(std::string_view text);
  bool isEmpty() const { return text_.empty(); }
  std::size_t maxLength() const { return maxLength_; }
  bool locked() const { return locked_; }
  bool multiLine() const { return multiLine_; }

  std::size_t SelStart() const { return start_; }
  std::size_t SelLength() const { return length_; }
  void select(std::size_t start, std::size_t length);
  void selectAll();
  /// Grows with every selection that a rule makes, so that a look tells it from the user's.
  unsigned selectionStamp() const { return stamp_; }

  Event Change;

  /// What the user does in the box: characters typed, pasted or dropped over the selection; a key;
  /// or, from a look that edits by itself, over any part of the text. A box of one line takes what
  /// comes in as onOneLine() does, and what does not fit is cut from it.
  /// @{
  void userInsert(std::string_view typed);
  void userBackspace();
  void userDelete();
  void userReplace(std::size_t start, std::size_t length, std::string_view inserted);
  void userSelect(std::size_t start, std::size_t length);
  /// @}

  bool takesFocus() const override { return true; }

 private:
  void replace(std::size_t start, std::size_t length, std::string inserted);

  std::string text_;
  std::size_t maxLength_;
  std::size_t start_ = 0;
  std::size_t length_ = 0;
  unsigned stamp_ = 0;
  bool locked_;
  bool multiLine_;
};

/// A command button.
class Button : public Captioned {
 public:
  using Captioned::Captioned;
  /// The button that Enter presses; a form has at most one. The same for Esc and cancel.
  void setDefault(bool isDefault);
  bool isDefault() const;
  void setCancel();

  Event Click;

  /// A press by mouse, Space or access key: the focus moves first, and the Click is raised exactly
  /// if the button has it then.
  void userClick();
  void userAccess() override { userClick(); }

  bool takesFocus() const override { return true; }
};

class CheckBox : public Captioned {
 public:
  CheckBox(Form& form, std::string name, std::string caption = {}, bool on = false);
  bool on() const { return on_; }
  /// Every change of the value raises Click.
  void setOn(bool on);

  Event Click;

  void userClick();
  void userAccess() override { userClick(); }
  bool takesFocus() const override { return true; }

 private:
  bool on_;
};

/// An option: at most one is on among those in the same container.
class OptionButton : public Captioned {
 public:
  OptionButton(Form& form, std::string name, std::string caption = {}, bool on = false);
  bool on() const { return on_; }
  /// Going on raises Click and turns its neighbours off silently; going off raises nothing.
  void setOn(bool on);

  Event Click;
  Event DblClick;
  Event MouseUp;

  /// A press by mouse, Space or an assistive tool.
  void userClick();
  void userAccess() override { userClick(); }
  void userDoubleClick();
  /// An arrow key chooses the next option of the group; the mouse has no part in it.
  void userArrow(int direction);
  bool takesFocus() const override { return true; }

 private:
  std::vector<OptionButton*> group() const;

  bool on_;
};

/// Lines of text, at most one of them selected.
class ListBox : public Control {
 public:
  using Control::Control;

  const std::vector<std::string>& lines() const { return lines_; }
  int ListCount() const { return static_cast<int>(lines_.size()); }
  /// The empty text for a line that is not there.
  std::string List(int index) const;
  void AddItem(std::string line);
  void Clear();
  int ListIndex() const { return index_; }
  /// -1 selects nothing. Raises Click if the index changes, 380 if there is no such line.
  void setListIndex(int index);
  /// The selected line's text, or the empty text.
  std::string text() const { return List(index_); }
  /// Grows with every Clear, so that a look sees that the lines are others.
  unsigned generation() const { return generation_; }

  Event Click;
  Event DblClick;

  /// What the user does at the list. Where there is no line, nothing happens.
  /// @{
  /// A press on a line: the focus moves first.
  void userSelect(int index);
  /// A double press on a line, or on an empty list: -1.
  void userDoubleClick(int index);
  /// A key that goes up or down by a number of lines, and stops at the ends.
  void userMove(int by);
  /// Typing: the next line that begins with the text, in a circle; `further` looks behind the line
  /// that is selected first.
  void userSearch(std::string_view beginning, bool further);
  /// @}
  bool takesFocus() const override { return true; }

 private:
  void choose(int index);

  std::vector<std::string> lines_;
  int index_ = -1;
  unsigned generation_ = 0;
};

/// A drop-down box, with free text or without.
class ComboBox : public Control {
 public:
  enum class Style { FreeText, ListOnly };
  ComboBox(Form& form, std::string name, Style style, std::vector<std::string> lines = {});

  Style style() const { return style_; }
  const std::vector<std::string>& lines() const { return lines_; }
  void AddItem(std::string line);
  const std::string& text() const { return text_; }
  /// With free text any text may be assigned. Without, one that is no line raises 383, one that is
  /// selects it and raises Click.
  void setText(const std::string& text);
  int ListIndex() const { return index_; }

  Event Change;
  Event Click;

  /// Characters typed, pasted or dropped over a part of the text, taken in as onOneLine() does.
  void userReplace(std::size_t start, std::size_t length, std::string_view inserted);
  void userSelect(int index);
  bool takesFocus() const override { return true; }

 private:
  Style style_;
  std::vector<std::string> lines_;
  std::string text_;
  int index_ = -1;
};

/// Two arrows beside a text box.
class SpinButton : public Control {
 public:
  using Control::Control;
  Event SpinUp;
  Event SpinDown;
  void userSpin(bool up);
  bool takesFocus() const override { return true; }
};

/// A tab control; its pages count from 0.
class TabStrip : public Control {
 public:
  TabStrip(Form& form, std::string name, std::vector<std::string> captions);
  const std::vector<std::string>& captions() const { return captions_; }
  int Tab() const { return tab_; }
  void setTab(int page);
  TabStrip& pageHolds(int page, std::initializer_list<Control*> controls);
  bool showsPage(int page) const override { return page == tab_; }

  /// The page on show has changed.
  Event Click;

  void userTab(int page);
  bool takesFocus() const override { return true; }

 private:
  std::vector<std::string> captions_;
  int tab_ = 0;
};

/// Shows a picture. Where there is a `Drop`, the user may bring a file of one from elsewhere.
class Image : public Control {
 public:
  Image(Form& form, std::string name, bool visible = true);
  std::function<void(const std::string& path)> Drop;
  void userDrop(const std::string& path);
  const Picture& picture() const { return picture_; }
  void setPicture(Picture picture);

 private:
  Picture picture_;
};

/// A coloured box that may hold controls. One that answers a click takes the focus too, and Space
/// presses it. A colour is 0x00BBGGRR.
class PictureBox : public Frame {
 public:
  PictureBox(Form& form, std::string name, long backColor = 0xC0C0C0);
  long BackColor() const { return backColor_; }
  void setBackColor(long color);

  Event Click;
  void userClick();
  bool takesFocus() const override { return Click != nullptr; }

 private:
  long backColor_;
};

/// A circle in a container, moved by rule: its place from the container's corner and its diameter
/// in twips.
class Shape : public Control {
 public:
  struct Place {
    double left = 0;
    double top = 0;
  };
  Shape(Form& form, std::string name, double size, Place place);
  double Left() const { return place_.left; }
  double Top() const { return place_.top; }
  double Size() const { return size_; }
  void setTop(double top);

 private:
  double size_;
  Place place_;
};

class ProgressBar : public Control {
 public:
  using Control::Control;
  double Max() const { return max_; }
  double Value() const { return value_; }
  /// Raises 380 for a maximum that is not above 0.
  void setMax(double max);
  /// A value outside 0 to Max is taken to the nearest end.
  void setValue(double value);

 private:
  double max_ = 100;
  double value_ = 0;
};

/// Fires its event every `interval` milliseconds while it is enabled; the look keeps the time.
class Timer : public Control {
 public:
  Timer(Form& form, std::string name, int interval);
  int interval() const { return interval_; }
  Event Fires;
  void userFires();

 private:
  int interval_;
};

/// The navigator of a data control, and its opening at the end of a window's load.
class Navigator : public Control {
 public:
  enum class Arrow { First, Previous, Next, Last };
  using Control::Control;

  virtual void open() = 0;
  virtual void go(Arrow arrow) = 0;

  Event MouseDown;

  /// A press on an arrow by mouse or key: MouseDown, then the move. The focus stays where it is.
  void userPress(Arrow arrow);
  bool takesFocus() const override { return true; }
};

}  // namespace nautrel
