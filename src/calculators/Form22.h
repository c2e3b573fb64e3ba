// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "calculators/diving_physics.h"
#include "platform/controls.h"
#include "platform/drawing.h"
#include "platform/form.h"
#include "shell/windows.h"

namespace nautrel {

class Shell;

/// "Calculations": a volume of air in two depths, with a picture of it, and the buoyancy of a
/// solid.
class Form22 : public Form {
 public:
  static constexpr int kNumber = Windows::Calculations;
  explicit Form22(Shell& app);

  void Form_Load() override;
  void SSTab1_Click();
  /// Text1 to Text4.
  void Text_GotFocus(TextBox& box);
  void Text5_GotFocus();
  void Text6_GotFocus();
  /// Fills the results of the table.
  void Berechnen();
  void Command1_Click();
  void Command2_Click();
  void Command3_Click();
  void Command4_Click();
  void Command5_Click();
  void Command6_Click();
  void Command7_Click();

  static constexpr long kWater = 0xFF8080;
  static constexpr long kAir = 0xFFC0FF;
  static constexpr long kSolid = 0x808080;
  /// Twips of a picture to the unit in which its air is measured.
  static constexpr double kTwips = 15;

  TabStrip SSTab1{*this, "SSTab1", {"Volume / depth", "Buoyancy"}};

  PictureBox Picture1{*this, "Picture1"};
  DrawnShape Shape1{*this, "Shape1", rectangle(120, 960, 4215, 1215, kWater)};
  DrawnLine Line1{*this, "Line1", {120, 960}, {4335, 960}, true, kWater};
  TextBox Text1{*this, "Text1", {.text = "0", .maxLength = 3}};
  Label Label6{*this, "Label6", "14,2 psi"};
  TextBox Text3{*this, "Text3", {.text = "1", .maxLength = 6}};
  TextBox Text4{*this, "Text4", {.text = "1", .maxLength = 5}};
  TextBox Text2{*this, "Text2", {.text = "0", .maxLength = 3}};
  Label Label9{*this, "Label9", "14,2 psi"};
  Label Label11{*this, "Label11", "1"};
  Label Label13{*this, "Label13", "1"};
  Button Command1{*this, "Command1", "&Calculate"};
  Button Command2{*this, "Command2", "Close"};
  Button Command3{*this, "Command3", "Graphic"};

  PictureBox Picture2{*this, "Picture2"};
  DrawnShape Shape2{*this, "Shape2", rectangle(120, 720, 4215, 2175, kWater)};
  DrawnLine Line2{*this, "Line2", {120, 720}, {4335, 720}, true, kWater};
  DrawnShape Shape3{*this, "Shape3", rectangle(1920, 960, 495, 600, kAir)};
  DrawnShape Shape4{*this, "Shape4", rectangle(1920, 1920, 495, 600, kAir)};
  DrawnLine Line3{*this, "Line3", {1920, 960}, {1920, 1560}};
  DrawnLine Line4{*this, "Line4", {1920, 960}, {2400, 960}};
  DrawnLine Line5{*this, "Line5", {2400, 960}, {2400, 1560}};
  DrawnLine Line6{*this, "Line6", {1920, 1920}, {1920, 2520}};
  DrawnLine Line7{*this, "Line7", {1920, 1920}, {2400, 1920}};
  DrawnLine Line8{*this, "Line8", {2400, 1920}, {2400, 2520}};
  DrawnShape Shape5{*this, "Shape5", bubble(2400, 1560), false};
  DrawnShape Shape6{*this, "Shape6", bubble(2520, 1440), false};
  DrawnShape Shape7{*this, "Shape7", bubble(2520, 1200), false};
  DrawnShape Shape8{*this, "Shape8", bubble(1680, 1200), false};
  DrawnShape Shape9{*this, "Shape9", bubble(1680, 1440), false};
  DrawnShape Shape10{*this, "Shape10", bubble(1800, 1560), false};
  DrawnLabel Label15{*this, "Label15", "Air goes out", label(2760, 1200, 1335, 375), false};
  DrawnLabel Label17{*this, "Label17", "Depth:", depthLabel(1200)};
  DrawnLabel Label16{*this, "Label16", "Depth:", depthLabel(2160)};
  DrawnLine Line9{*this, "Line9", {480, 1440}, {480, 2160}};
  DrawnLine Line10{*this, "Line10", {480, 1440}, {360, 1560}, false};
  DrawnLine Line11{*this, "Line11", {480, 1440}, {600, 1560}, false};
  DrawnLine Line12{*this, "Line12", {360, 2040}, {480, 2160}, false};
  DrawnLine Line13{*this, "Line13", {600, 2040}, {480, 2160}, false};
  Button Command4{*this, "Command4", "back"};

  Label Label23{*this, "Label23", "<no calculation>"};
  OptionButton Option1{*this, "Option1", "Salt water", true};
  OptionButton Option2{*this, "Option2", "Sweet wat."};
  TextBox Text5{*this, "Text5"};
  TextBox Text6{*this, "Text6"};
  Button Command7{*this, "Command7", "Set weight"};
  Button Command6{*this, "Command6", "Calculate"};
  Button Command5{*this, "Command5", "Close"};
  DrawnShape Shape11{*this, "Shape11", rectangle(240, 1440, 4215, 1215, kWater)};
  DrawnLine Line14{*this, "Line14", {240, 1440}, {4455, 1440}, true, kWater};
  DrawnShape Shape12{*this, "Shape12", rectangle(1680, 1860, 735, 375, kSolid)};
  DrawnLine Line15{*this, "Line15", {2040, 1560}, {2040, 1800}, false};
  DrawnLine Line16{*this, "Line16", {2040, 1560}, {1920, 1680}, false};
  DrawnLine Line17{*this, "Line17", {2040, 1560}, {2160, 1680}, false};
  DrawnLine Line18{*this, "Line18", {2040, 2280}, {2040, 2520}, false};
  DrawnLine Line19{*this, "Line19", {2040, 2520}, {1920, 2400}, false};
  DrawnLine Line20{*this, "Line20", {2040, 2520}, {2160, 2400}, false};

 private:
  static Figure rectangle(double left, double top, double width, double height, long color);
  static Figure bubble(double left, double top);
  static Figure label(double left, double top, double width, double height);
  static Figure depthLabel(double top);

  void arrangePages();
  void bindHandlers();
  AirTexts typed() const;
  Water water() const;
  void showScene();
  void bringToFront(PictureBox& front, PictureBox& back);

  Shell& app_;
  AirScene scene_;
};

}  // namespace nautrel
