// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <vector>

#include "shell/FrameForm.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;
struct WindowEntry;

/// The main window's background as long as no setting says otherwise.
inline constexpr long kStandardColor = 0xC0C0C0;

/// The main window: it frames all others and hands every command to the window that carries it
/// out.
class MDIForm1 : public FrameForm {
 public:
  static constexpr int kNumber = Windows::Main;
  explicit MDIForm1(Shell& app);

  /// What stands for a size that was never chosen.
  static constexpr const char* kNoSize = "---";
  /// Whether the settings give the window a size of its own.
  bool hasFreeSize() const;

  void Form_Load() override;
  void Form_Resize() override;
  /// `button`: 1 left, 2 right.
  void MDIForm_MouseUp(int button);

  long BackColor() const { return backColor_; }
  void setBackColor(long color);
  const nautrel::Picture& picture() const { return picture_; }
  void setPicture(nautrel::Picture picture);
  /// Colour and picture by the settings. Without a usable colour it is the standard one, and the
  /// picture is left alone; so it is when the setting's picture cannot be loaded.
  void applyBackground();

  /// Startform2 to Startform15 and Startform20: unloads every window of the exclusive set but the
  /// one of that number, in ascending order.
  void Startform(int number);

  void gateCommands(bool enabled) override;
  /// The desktop has given the main window its first size after it was shown: the window of the
  /// start takes the place that its command would give it now.
  void userSettled();

  /// All menus in the order of the bar, the context menus last.
  std::vector<Menu*> menus();

  Menu Menü1{*this, "Menü1", "&File"};
  MenuItem Menü1a{*this, "Menü1a", "&Print dive-list", "Ctrl+P"};
  MenuItem Menü1f{*this, "Menü1f", "Printer &Setup"};
  MenuItem Menü1b{*this, "Menü1b", "&User Information", "Ctrl+U"};
  MenuItem Menü1c{*this, "Menü1c", "&Dive Equipment", "Ctrl+E"};
  MenuItem Menü1d{*this, "Menü1d", "Sort &Logbook"};
  MenuItem Menü1g{*this, "Menü1g", "P&references"};
  MenuItem Menü1e{*this, "Menü1e", "&Close"};
  Menu Menü2{*this, "Menü2", "&Edit"};
  MenuItem Menü2a{*this, "Menü2a", "&Insert dive", "F1"};
  MenuItem Menü2b{*this, "Menü2b", "Ed&it dive", "F2"};
  MenuItem Menü2c{*this, "Menü2c", "&Delete dive", "F3"};
  Menu Menü3{*this, "Menü3", "&Logbook"};
  MenuItem Menü3a{*this, "Menü3a", "&View Logbook", "Ctrl+V"};
  MenuItem Menü3d{*this, "Menü3d", "Logbook &Table"};
  MenuItem Menü3b{*this, "Menü3b", "Search a &word", "Ctrl+W"};
  MenuItem Menü3c{*this, "Menü3c", "Search a &number", "Ctrl+N"};
  MenuItem Menü3e{*this, "Menü3e", "&Full search"};
  Menu Menü4{*this, "Menü4", "&Evaluation"};
  MenuItem Menü4a{*this, "Menü4a", "&Statistic", "Ctrl+T"};
  MenuItem Menü4b{*this, "Menü4b", "&Year graph", "Ctrl+J"};
  MenuItem Menü4c{*this, "Menü4c", "&Month graph", "Ctrl+M"};
  Menu Menü7{*this, "Menü7", "E&xtras"};
  MenuItem Menü7b{*this, "Menü7b", "&Cascade windows"};
  MenuItem Menü7a{*this, "Menü7a", "&Unit calculation"};
  MenuItem Menü7c{*this, "Menü7c", "&Calculations"};
  Menu Menü5{*this, "Menü5", "&Help"};
  MenuItem Menü5a{*this, "Menü5a", "H&elp", "Ctrl+F1"};
  MenuItem Menü5b{*this, "Menü5b", "&Info"};
  Menu Menü6{*this, "Menü6", "Kontexmenü", false};
  MenuItem Menü6a{*this, "Menü6a", "&Insert dive"};
  MenuItem Menü6b{*this, "Menü6b", "Ed&it dive"};
  MenuItem Menü6c{*this, "Menü6c", "&View Logbook"};
  MenuItem Menü6d{*this, "Menü6d", "Search a &word"};
  MenuItem Menü6e{*this, "Menü6e", "Search a &number"};
  MenuItem Menü6f{*this, "Menü6f", "S&tatistic"};
  MenuItem Menü6g{*this, "Menü6g", "&Year graph"};
  MenuItem Menü6h{*this, "Menü6h", "&Month graph"};
  MenuItem Menü8a{*this, "Menü8a", "View..."};
  MenuItem Menü8b{*this, "Menü8b", "Edit..."};
  MenuItem Menü8c{*this, "Menü8c", "Delete..."};

  Toolbar Toolbar1;
  CommonDialog CommonDialog1;

  /// What the look offers for "Cascade windows".
  std::function<void()> cascade;

 private:
  void arrangeMenus();
  void bindCommands();
  void bindToolbar();
  MenuItem* item(std::string_view name) const;
  void command(const WindowEntry& window, const char* refusal);
  bool isSorted(int dives) const;
  void applySize();
  /// Shows the record dive whose number button the statistic's user pressed last.
  template <class RecordForm>
  void showRecordDive();

  Shell& app_;
  long backColor_ = kStandardColor;
  nautrel::Picture picture_;
};

}  // namespace nautrel
