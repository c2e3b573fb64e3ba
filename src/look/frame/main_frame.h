// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QMainWindow>
#include <QMap>
#include <QMdiArea>
#include <QPointer>

#include "look/frame/form_view.h"

class QAction;
class QMenu;
class QStackedWidget;

namespace nautrel {

class MDIForm1;
class Menu;
class StatusPanels;

/// The child windows' ground: the diver's colour and picture, and his context menu.
class Ground : public QMdiArea {
 public:
  explicit Ground(MDIForm1& form) : form_(form) {}
  void setGround(const QColor& color, const Picture& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

 private:
  MDIForm1& form_;
  bool pressed_ = false;
  QColor color_;
  Picture picture_;
};

/// The main window: menu bar, toolbar, status bar and progress strip, made from the model's own
/// tables.
class MainFrame : public FormView {
 public:
  MainFrame(QtLooks& looks, MDIForm1& form);
  ~MainFrame() override;

  void show() override;
  void close() override;
  QWidget* root() const override;
  void controlChanged(Control& control) override;
  void formChanged() override;

  QMdiArea& area() const { return *area_; }
  QMainWindow& window() const { return *window_; }
  QMenu& menu(const Menu& menu) const;
  /// Whether a key belongs to a command of the menu bar or to the child windows.
  bool isShortcut(const QKeySequence& keys) const;
  /// Puts the child windows on top of each other as the program has them.
  void pushStack();

 protected:
  void pushForm() override;

 private:
  void makeMenus();
  void makeKeys();
  void addKey(const char* keys, std::function<void()> action);
  void makeToolbar();
  void makeStatus();
  void placeWindow();
  void pullBack();
  void pushCommands();
  void pushPointer();

  MDIForm1& form_;
  QPointer<QMainWindow> window_;
  Ground* area_ = nullptr;
  StatusPanels* panels_ = nullptr;
  QStackedWidget* bottom_ = nullptr;
  QMap<const Control*, QAction*> actions_;
  QMap<const Menu*, QMenu*> menus_;
  QList<QAction*> buttons_;
  QList<QKeySequence> keys_;
  bool hourglass_ = false;
  bool commandsDirty_ = true;
};

}  // namespace nautrel
