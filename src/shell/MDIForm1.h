#pragma once

#include <vector>

#include "platform/controls.h"
#include "platform/form.h"
#include "platform/frame.h"

namespace nautrel {

class Nautrel;
class Recordset;

/// The main window's background as long as no setting says otherwise.
inline constexpr long kStandardColor = 0xC0C0C0;

/// The main window: it frames all others and hands every command to the window that carries it
/// out.
class MDIForm1 : public Form {
 public:
  using App = Nautrel;
  explicit MDIForm1(Nautrel& app);

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
  /// 0 default, 11 hourglass.
  int MousePointer() const { return mousePointer_; }
  void setMousePointer(int pointer);

  /// Unloads every window of the exclusive set but Form<n>, in ascending order.
  /// @{
  void Startform2();
  void Startform3();
  void Startform4();
  void Startform5();
  void Startform6();
  void Startform7();
  void Startform8();
  void Startform9();
  void Startform10();
  void Startform11();
  void Startform12();
  void Startform13();
  void Startform14();
  void Startform15();
  void Startform20();
  /// @}

  /// Enables or disables the nineteen menu items and twelve toolbar buttons that need dives.
  void gateCommands(bool enabled);
  /// Notes the window that the start opens by itself.
  void setStartWindow(int number) { startWindow_ = number; }
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
  Menu Menü8{*this, "Menü8", "Kontexmenü2", false};
  MenuItem Menü8a{*this, "Menü8a", "View..."};
  MenuItem Menü8b{*this, "Menü8b", "Edit..."};
  MenuItem Menü8c{*this, "Menü8c", "Delete..."};

  Toolbar Toolbar1;
  StatusBar StatusBar1;
  PictureBox Picture1{*this, "Picture1"};
  ProgressBar ProgressBar1{*this, "ProgressBar1"};
  CommonDialog CommonDialog1;

  /// What the look offers for "Cascade windows".
  std::function<void()> cascade;

 private:
  void arrangeMenus();
  void bindCommands();
  void bindToolbar();
  void startform(int kept);
  void command(int number);
  void showBeside(int number);
  void insertDive(const char* refusal);
  bool isSorted(int dives) const;
  void applySize();
  /// Shows the record dive whose number button the statistic's user pressed last.
  void showRecordDive(int window);
  Recordset& recordsOf(int window);
  double currentNumberOf(int window);

  Nautrel& app_;
  long backColor_ = kStandardColor;
  nautrel::Picture picture_;
  int mousePointer_ = 0;
  int startWindow_ = 0;
};

/// The hourglass on the main window for the time of a block; a block that the end of the program
/// leaves does not put it back.
class Hourglass {
 public:
  explicit Hourglass(MDIForm1& frame);
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  MDIForm1& frame_;
};

/// How far left of the frame's middle and above it a child stands with its own, in twips: half of
/// what frame, toolbar, status bar and menu take together.
inline constexpr double kLeftOfMiddle = 90;
inline constexpr double kAboveMiddle = 740;

/// The place that every child window takes at its load, by the measures of frame and window.
void placeInFrame(Form& child, const MDIForm1& frame);

}  // namespace nautrel
