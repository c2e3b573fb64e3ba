// SPDX-License-Identifier: GPL-2.0-or-later
#include "gui/agreement.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTabWidget>
#include <QToolBar>

#include "app/MDIForm1.h"
#include "app/Nautrel.h"
#include "data/grid.h"
#include "look/convert.h"
#include "look/frame/form_view.h"
#include "look/frame/main_frame.h"
#include "platform/controls.h"
#include "platform/tick_table.h"

namespace nautrel {
namespace {

std::string withoutAccessKey(QString caption) {
  return fromQt(caption.remove('&'));
}
std::string oneKindOfLineEnd(const std::string& text) {
  return fromQt(toQt(text).replace("\r\n", "\n").replace('\r', '\n'));
}
std::string nameOf(const Form* form) {
  return form == nullptr ? "none" : form->name();
}
QRect place(const Form& form) {
  return {toPixels(form.Left()), toPixels(form.Top()), toPixels(form.Width()),
          toPixels(form.Height())};
}

class Comparison {
 public:
  Comparison(Program& app, const QtLooks& looks, bool boxIsOpen)
      : app_(app), looks_(looks), boxIsOpen_(boxIsOpen) {}

  std::vector<std::string> run() {
    for (int number = Windows::Main; number <= Windows::Calculations; ++number) {
      auto* form = app_.ifLoaded(number);
      const auto* view = form == nullptr ? nullptr : looks_.viewOf(*form);
      if (view == nullptr || view->root() == nullptr) continue;
      window(*form, *view->root());
      for (const auto& binding : view->bindings()) control(*binding);
    }
    if (looks_.mainFrame() != nullptr) frame();
    if (!boxIsOpen_) focus();
    return std::move(found_);
  }

 private:
  template <class Value>
  void same(const char* what, const Value& model, const Value& screen) {
    if (model == screen) return;
    found_.push_back(where_ + " " + what + ": the model says " + testing::PrintToString(model) +
                     ", the screen " + testing::PrintToString(screen));
  }
  void same(const char* what, const std::string& model, const QVariant& screen) {
    same(what, model, fromQt(screen.toString()));
  }
  void same(const char* what, const QRect& model, const QRect& screen) {
    const auto tell = [](const QRect& r) {
      return testing::PrintToString(std::vector<int>{r.x(), r.y(), r.width(), r.height()});
    };
    same(what, tell(model), tell(screen));
  }

  void window(Form& form, const QWidget& root) {
    where_ = form.name();
    // A maximized child stands in the main window's title too.
    same("title", form.caption(), root.windowTitle().section(QStringLiteral(" - ["), 0, 0));
    same("visible", form.visible(), root.isVisible());
    if (!form.visible()) return;
    const bool small = form.windowState() == WindowState::Minimized;
    same("minimized", small, root.isMinimized());
    same("maximized", form.windowState() == WindowState::Maximized, root.isMaximized());
    if (const auto* child = qobject_cast<const QMdiSubWindow*>(&root))
      same("enabled", form.enabled(), child->widget()->isEnabled());
    if (!small && !scrolls())
      same("place", place(form), root.isWindow() ? root.frameGeometry() : root.geometry());
  }

  // An area that scrolls moves its windows away from where a rule has put them.
  bool scrolls() const {
    const auto* frame = looks_.mainFrame();
    return frame != nullptr && (frame->area().verticalScrollBar()->isVisible() ||
                                frame->area().horizontalScrollBar()->isVisible());
  }

  void control(const Binding& binding) {
    const auto& control = binding.control();
    const auto& widget = *binding.widget();
    const auto& form = control.form();
    where_ = form.name() + "." + control.name();
    same("enabled", control.enabled(), widget.isEnabledTo(widget.parentWidget()));
    same("visible", control.visible(), widget.isVisibleTo(widget.parentWidget()));
    if (form.visible() && control.takesFocus() && !looks_.viewOf(form)->root()->isMinimized())
      same("shows", control.shows(), widget.isVisible());
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) text(*box, widget);
    if (const auto* label = dynamic_cast<const Label*>(&control)) {
      const auto title = widget.property(widget.inherits("QLabel") ? "text" : "title");
      if (title.isValid()) same("caption", label->caption(), title);
    }
    if (const auto* button = dynamic_cast<const Button*>(&control)) {
      caption(button->caption(), widget);
      if (!boxIsOpen_)
        same("default", form.enterButton() == button, widget.property("default").toBool());
    }
    if (const auto* check = dynamic_cast<const CheckBox*>(&control)) mark(*check, widget);
    if (const auto* option = dynamic_cast<const OptionButton*>(&control)) mark(*option, widget);
    if (const auto* list = dynamic_cast<const ListBox*>(&control)) lines(*list, widget);
    if (const auto* combo = dynamic_cast<const ComboBox*>(&control)) {
      same("lines", static_cast<int>(combo->lines().size()), widget.property("count").toInt());
      same("text", combo->text(), widget.property("currentText"));
      if (combo->style() == ComboBox::Style::ListOnly)
        same("index", combo->ListIndex(), widget.property("currentIndex").toInt());
    }
    if (const auto* strip = dynamic_cast<const TabStrip*>(&control)) {
      same("page", strip->Tab(), widget.property("currentIndex").toInt());
      for (int page = 0; page < static_cast<int>(strip->captions().size()); ++page)
        same("tab", strip->captions()[static_cast<std::size_t>(page)],
             static_cast<const QTabWidget&>(widget).tabText(page));
    }
    if (const auto* bar = dynamic_cast<const ProgressBar*>(&control))
      same("value", static_cast<int>(bar->Value()), widget.property("value").toInt());
    if (const auto* shape = dynamic_cast<const Shape*>(&control))
      same("top", toPixels(shape->Top()), widget.y());
    if (const auto* table = dynamic_cast<const TickTable*>(&control)) ticks(*table, widget);
    if (const auto* grid = dynamic_cast<const Grid*>(&control))
      same("rows", grid->rowCount(),
           static_cast<const QAbstractItemView&>(widget).model()->rowCount());
  }

  void caption(const std::string& caption, const QWidget& widget) {
    same("caption", withoutAccessKey(toQt(caption)),
         withoutAccessKey(widget.property("text").toString()));
  }
  template <class Marked>
  void mark(const Marked& control, const QWidget& widget) {
    caption(control.caption(), widget);
    same("mark", control.on(), widget.property("checked").toBool());
  }

  void text(const TextBox& box, const QWidget& widget) {
    const auto* line = qobject_cast<const QLineEdit*>(&widget);
    const auto* page = qobject_cast<const QPlainTextEdit*>(&widget);
    const auto shown = line != nullptr ? line->text() : page->toPlainText();
    same("text", line != nullptr ? box.text() : oneKindOfLineEnd(box.text()), shown);
    if (!widget.hasFocus() || boxIsOpen_) return;
    const auto cursor = page != nullptr ? page->textCursor() : QTextCursor();
    const int start = page != nullptr           ? cursor.selectionStart()
                      : line->hasSelectedText() ? line->selectionStart()
                                                : line->cursorPosition();
    const int end = page != nullptr           ? cursor.selectionEnd()
                    : line->hasSelectedText() ? line->selectionEnd()
                                              : line->cursorPosition();
    const std::pair<std::size_t, std::size_t> model(box.SelStart(),
                                                    box.SelStart() + box.SelLength());
    same("selection", model, {fromQtPosition(shown, start), fromQtPosition(shown, end)});
  }

  void lines(const ListBox& list, const QWidget& widget) {
    const auto& view = static_cast<const QAbstractItemView&>(widget);
    same("lines", list.ListCount(), view.model()->rowCount());
    std::vector<int> highlighted;
    for (const auto& index : view.selectionModel()->selectedIndexes())
      highlighted.push_back(index.row());
    same("highlight", list.ListIndex() < 0 ? std::vector<int>{} : std::vector{list.ListIndex()},
         highlighted);
    if (list.ListIndex() >= 0) same("current line", list.ListIndex(), view.currentIndex().row());
  }

  void ticks(const TickTable& table, const QWidget& widget) {
    const auto& view = static_cast<const QAbstractItemView&>(widget);
    same("rows", table.rowCount(), view.model()->rowCount());
    same("current row", table.current(), view.currentIndex().row());
    for (int row = 0; row < table.rowCount(); ++row)
      same("tick", table.row(row).ticked,
           view.model()->index(row, 0).data(Qt::CheckStateRole).toInt() == Qt::Checked);
  }

  void frame() {
    auto& main = static_cast<Nautrel&>(app_).MDIForm1();
    const auto& window = looks_.mainFrame()->window();
    for (auto* menu : main.menus()) {
      const auto actions = looks_.mainFrame()->menu(*menu).actions();
      for (std::size_t i = 0; i < menu->items().size(); ++i) {
        where_ = menu->items()[i] == nullptr ? menu->name() : menu->items()[i]->name();
        const auto& action = *actions.at(static_cast<qsizetype>(i));
        same("separator", menu->items()[i] == nullptr, action.isSeparator());
        if (menu->items()[i] != nullptr)
          same("enabled", menu->items()[i]->enabled(), action.isEnabled());
      }
    }
    for (auto* action : window.findChild<QToolBar*>()->actions())
      for (const auto& button : main.Toolbar1.buttons())
        if (where_ = "toolbar " + button.key;
            !button.key.empty() && toQt(button.toolTip) == action->text())
          same("enabled", button.enabled, action->isEnabled());
    where_ = "status";
    const auto* panels = window.findChild<QWidget*>("StatusBar1");
    same("text", main.StatusBar1.panelText(3), panels->findChildren<QLabel*>().at(2)->text());
    same("hourglass", main.MousePointer() != 0, QApplication::overrideCursor() != nullptr);
  }

  /// False if the window in front has the keyboard itself.
  bool front(const Form* active, const QWidget* has) {
    where_ = "front";
    const auto* front = looks_.mainFrame()->area().activeSubWindow();
    const auto* view = front == nullptr ? nullptr : looks_.viewAround(front);
    const bool child =
        active != nullptr && active->name() != "MDIForm1" && active->name() != "Form1";
    same("window", nameOf(child ? active : nullptr), nameOf(view ? &view->form() : nullptr));
    // Minimized, or being moved by keys, the window itself has the keyboard.
    return front == nullptr || (!front->isMinimized() && has != front);
  }

  void focus() {
    const auto* active = app_.activeForm();
    const auto* has = QApplication::focusWidget();
    // Without a window manager none may be active after a menu, and then nobody has the keyboard.
    if (QApplication::activeWindow() == nullptr) return;
    if (QApplication::activePopupWidget() != nullptr || qobject_cast<const QMenuBar*>(has) ||
        looks_.topWindow() == nullptr || looks_.topWindow()->isMinimized())
      return;
    if (looks_.mainFrame() != nullptr && !front(active, has)) return;
    where_ = "focus";
    const auto* around = looks_.viewAround(has);
    const auto* binding = around == nullptr ? nullptr : around->bindingAround(has);
    const auto* focused = active == nullptr ? nullptr : active->activeControl();
    same("control", focused == nullptr ? "none" : nameOf(active) + "." + focused->name(),
         binding == nullptr ? "none" : nameOf(&around->form()) + "." + binding->control().name());
  }

  Program& app_;
  const QtLooks& looks_;
  bool boxIsOpen_;
  std::string where_;
  std::vector<std::string> found_;
};

}  // namespace

std::vector<std::string> disagreements(Program& app, const QtLooks& looks, bool boxIsOpen) {
  return Comparison(app, looks, boxIsOpen).run();
}

}  // namespace nautrel
