// SPDX-License-Identifier: GPL-2.0-or-later
#include <QButtonGroup>
#include <QCheckBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>

#include "look/bindings/binding.h"
#include "look/bindings/bubble_view.h"
#include "look/bindings/color_sample.h"
#include "look/bindings/combo_binding.h"
#include "look/bindings/list_binding.h"
#include "look/bindings/navigator_bar.h"
#include "look/bindings/spin_arrows.h"
#include "look/bindings/table_binding.h"
#include "look/bindings/text_binding.h"
#include "look/bindings/tick_table_binding.h"
#include "look/charts/chart_binding.h"
#include "look/convert.h"
#include "look/pictures/file_drop.h"
#include "look/pictures/picture_view.h"
#include "look/pictures/scene_view.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace nautrel {
namespace {

class LabelBinding : public Binding {
 public:
  LabelBinding(Label& label, QLabel& widget)
      : Binding(label, widget), label_(label), out_(widget), spokenAs_(widget.accessibleName()) {
    out_.setTextFormat(Qt::PlainText);
  }

 protected:
  void pushContent() override {
    const auto text = toQt(label_.caption());
    if (out_.text() != text) out_.setText(text);
    if (!spokenAs_.isEmpty()) out_.setAccessibleName(spokenAs_ + QStringLiteral(": ") + text);
  }

 private:
  Label& label_;
  QLabel& out_;
  const QString spokenAs_;  // what the figure is that stands in it, by the design
};

class GroupBinding : public Binding {
 public:
  GroupBinding(Label& frame, QGroupBox& box) : Binding(frame, box), frame_(frame), box_(box) {}

 protected:
  void pushContent() override {
    if (const auto text = toQt(frame_.caption()); box_.title() != text) box_.setTitle(text);
  }

 private:
  Label& frame_;
  QGroupBox& box_;
};

class PlainBinding : public Binding {
 public:
  using Binding::Binding;

 protected:
  void pushContent() override {}
};

class PictureBoxBinding : public Binding {
 public:
  PictureBoxBinding(PictureBox& box, QWidget& widget) : Binding(box, widget), box_(box) {
    widget.setAutoFillBackground(static_cast<bool>(box.Click));
  }

 protected:
  bool filter(QEvent* event) override {
    if (event->type() != QEvent::MouseButtonRelease || !box_.Click) return false;
    box_.userClick();
    return true;
  }
  void pushContent() override {
    if (!box_.Click) return;
    auto palette = widget()->palette();
    palette.setColor(QPalette::Window, toQt(box_.BackColor()));
    widget()->setPalette(palette);
  }

 private:
  PictureBox& box_;
};

class ColorBinding : public Binding {
 public:
  ColorBinding(PictureBox& box, ColorSample& sample)
      : Binding(box, sample), box_(box), sample_(sample) {
    sample.setFocusPolicy(Qt::TabFocus);
    connect(&sample, &ColorSample::clicked, this, [this] { box_.userClick(); });
  }

 protected:
  void pushContent() override { sample_.setColor(toQt(box_.BackColor())); }

 private:
  PictureBox& box_;
  ColorSample& sample_;
};

class ShapeBinding : public Binding {
 public:
  ShapeBinding(Shape& shape, BubbleView& view) : Binding(shape, view), shape_(shape), view_(view) {}

 protected:
  void pushContent() override {
    const int size = toPixels(shape_.Size());
    view_.setGeometry(toPixels(shape_.Left()), toPixels(shape_.Top()), size, size);
  }

 private:
  Shape& shape_;
  BubbleView& view_;
};

// Of several access keys in a caption ("&Pr&int") the last one counts.
QString withOneAccessKey(QString caption) {
  const auto last = caption.lastIndexOf('&');
  for (auto key = last - 1; key >= 0; --key)
    if (caption.at(key) == '&') caption.remove(key, 1);
  return caption;
}

class ButtonBinding : public Binding {
 public:
  ButtonBinding(Button& button, QPushButton& widget)
      : Binding(button, widget), button_(button), widget_(widget) {
    widget.setFocusPolicy(Qt::TabFocus);
    widget.setAutoDefault(false);
    connect(&widget, &QPushButton::clicked, this, [this] { button_.userClick(); });
  }
  bool followsFocus() const override { return true; }

 protected:
  void pushContent() override {
    if (const auto text = withOneAccessKey(toQt(button_.caption())); widget_.text() != text) {
      widget_.setText(text);
      giveTextRoom();
    }
    const bool takesEnter = button_.form().enterButton() == &button_;
    if (widget_.isDefault() != takesEnter) widget_.setDefault(takesEnter);
  }

 private:
  // The style leaves a long caption hardly a hair's breadth to the edge.
  void giveTextRoom() {
    const int width = widget_.fontMetrics().size(Qt::TextShowMnemonic, widget_.text()).width();
    if (width + 28 > widget_.minimumWidth() && widget_.maximumWidth() == QWIDGETSIZE_MAX)
      widget_.setMinimumWidth(width + 28);
  }

  Button& button_;
  QPushButton& widget_;
};

class CheckBinding : public Binding {
 public:
  CheckBinding(CheckBox& box, QCheckBox& widget) : Binding(box, widget), box_(box), out_(widget) {
    widget.setFocusPolicy(Qt::TabFocus);
    connect(&widget, &QCheckBox::clicked, this, [this] { box_.userClick(); });
  }

 protected:
  void pushContent() override {
    if (const auto text = toQt(box_.caption()); out_.text() != text) out_.setText(text);
    out_.setChecked(box_.on());
  }

 private:
  CheckBox& box_;
  QCheckBox& out_;
};

class OptionBinding : public Binding {
 public:
  OptionBinding(OptionButton& option, QRadioButton& widget)
      : Binding(option, widget), option_(option), out_(widget) {
    letModelExclude();
    widget.setFocusPolicy(Qt::TabFocus);
    connect(&widget, &QRadioButton::clicked, this, [this] { option_.userClick(); });
  }

 protected:
  bool filter(QEvent* event) override {
    if (event->type() == QEvent::MouseButtonDblClick) {
      option_.userDoubleClick();
      return true;
    }
    if (event->type() != QEvent::KeyPress) return false;
    switch (static_cast<QKeyEvent*>(event)->key()) {
      case Qt::Key_Up:
      case Qt::Key_Left:
        option_.userArrow(-1);
        return true;
      case Qt::Key_Down:
      case Qt::Key_Right:
        option_.userArrow(1);
        return true;
      default:
        return false;
    }
  }
  void pushContent() override {
    if (const auto text = toQt(option_.caption()); out_.text() != text) out_.setText(text);
    out_.setChecked(option_.on());
  }

 private:
  // The model switches the neighbours off, and a group may be empty. Without auto-exclusivity the
  // widget would be a check box to a screen reader; a group of its own takes the effect from it.
  void letModelExclude() {
    auto* alone = new QButtonGroup(&out_);
    alone->setExclusive(false);
    alone->addButton(&out_);
  }

  OptionButton& option_;
  QRadioButton& out_;
};

class TabBinding : public Binding {
 public:
  TabBinding(TabStrip& strip, QTabWidget& widget)
      : Binding(strip, widget), strip_(strip), out_(widget) {
    widget.setFocusPolicy(Qt::NoFocus);
    widget.tabBar()->setFocusPolicy(Qt::TabFocus);
    widget.setFocusProxy(widget.tabBar());
    watch(*widget.tabBar());
    connect(&widget, &QTabWidget::currentChanged, this, [this](int page) { strip_.userTab(page); });
  }

 protected:
  void pushContent() override {
    int page = 0;
    for (const auto& caption : strip_.captions()) {
      if (const auto text = toQt(caption); out_.tabText(page) != text) out_.setTabText(page, text);
      ++page;
    }
    out_.setCurrentIndex(strip_.Tab());
  }

 private:
  TabStrip& strip_;
  QTabWidget& out_;
};

class ImageBinding : public Binding {
 public:
  ImageBinding(Image& image, PictureView& view) : Binding(image, view), image_(image), view_(view) {
    if (image.Drop)
      drop_ = std::make_unique<FileDrop>(
          *view.parentWidget(), [this](const QString& path) { image_.userDrop(fromQt(path)); });
  }
  void release() override {
    drop_.reset();
    Binding::release();
  }

 protected:
  void pushContent() override { view_.setPicture(image_.picture()); }

 private:
  std::unique_ptr<FileDrop> drop_;
  Image& image_;
  PictureView& view_;
};

class ProgressBinding : public Binding {
 public:
  ProgressBinding(ProgressBar& bar, QProgressBar& widget)
      : Binding(bar, widget), bar_(bar), out_(widget) {}

 protected:
  void pushContent() override {
    out_.setMaximum(static_cast<int>(bar_.Max()));
    out_.setValue(static_cast<int>(bar_.Value()));
  }

 private:
  ProgressBar& bar_;
  QProgressBar& out_;
};

class SpinBinding : public Binding {
 public:
  SpinBinding(SpinButton& spin, SpinArrows& arrows) : Binding(spin, arrows), spin_(spin) {
    arrows.stepped = [this](bool up) { spin_.userSpin(up); };
    released_ = [&arrows] { arrows.stepped = nullptr; };
  }
  void release() override {
    if (widget() != nullptr) released_();
    Binding::release();
  }

 protected:
  void pushContent() override {}

 private:
  SpinButton& spin_;
  std::function<void()> released_;
};

class NavigatorBinding : public Binding {
 public:
  NavigatorBinding(Navigator& navigator, NavigatorBar& bar)
      : Binding(navigator, bar), navigator_(navigator), bar_(bar) {
    bar.pressed = [this](Navigator::Arrow arrow) { navigator_.userPress(arrow); };
  }
  void release() override {
    if (widget() != nullptr) bar_.pressed = nullptr;
    Binding::release();
  }

 protected:
  void pushContent() override {}

 private:
  Navigator& navigator_;
  NavigatorBar& bar_;
};

/// Makes the binding if control and widget are of these kinds.
template <class Made, class ControlKind, class WidgetKind>
bool tryBind(Control& control, QWidget& widget, std::unique_ptr<Binding>& made) {
  auto* model = dynamic_cast<ControlKind*>(&control);
  auto* view = dynamic_cast<WidgetKind*>(&widget);
  if (model == nullptr || view == nullptr) return false;
  made = std::make_unique<Made>(*model, *view);
  return true;
}

}  // namespace

std::unique_ptr<Binding> bind(Control& control, QWidget& widget) {
  std::unique_ptr<Binding> made;
  (void)(tryBind<LineEditBinding, TextBox, QLineEdit>(control, widget, made) ||
         tryBind<PlainTextBinding, TextBox, QPlainTextEdit>(control, widget, made) ||
         tryBind<ButtonBinding, Button, QPushButton>(control, widget, made) ||
         tryBind<CheckBinding, CheckBox, QCheckBox>(control, widget, made) ||
         tryBind<OptionBinding, OptionButton, QRadioButton>(control, widget, made) ||
         tryBind<ListBinding, ListBox, ListView>(control, widget, made) ||
         tryBind<TableBinding, Grid, TableView>(control, widget, made) ||
         tryBind<TickTableBinding, TickTable, TickTableView>(control, widget, made) ||
         tryBind<ComboBinding, ComboBox, QComboBox>(control, widget, made) ||
         tryBind<TabBinding, TabStrip, QTabWidget>(control, widget, made) ||
         tryBind<SpinBinding, SpinButton, SpinArrows>(control, widget, made) ||
         tryBind<NavigatorBinding, Navigator, NavigatorBar>(control, widget, made) ||
         tryBind<ImageBinding, Image, PictureView>(control, widget, made) ||
         tryBind<ShapeBinding, Shape, BubbleView>(control, widget, made) ||
         tryBind<ChartBinding, Chart, ChartWidget>(control, widget, made) ||
         tryBind<SceneBinding, Drawing, SceneView>(control, widget, made) ||
         tryBind<ProgressBinding, ProgressBar, QProgressBar>(control, widget, made) ||
         tryBind<ColorBinding, PictureBox, ColorSample>(control, widget, made) ||
         tryBind<PictureBoxBinding, PictureBox, QWidget>(control, widget, made) ||
         tryBind<GroupBinding, Frame, QGroupBox>(control, widget, made) ||
         tryBind<PlainBinding, Frame, QWidget>(control, widget, made) ||
         tryBind<LabelBinding, Label, QLabel>(control, widget, made));
  return made;
}

}  // namespace nautrel
