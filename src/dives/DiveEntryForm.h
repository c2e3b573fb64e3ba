// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "dives/dive_columns.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace nautrel {

class Shell;

/// The boxes of one dive and their rules, as the windows that enter and edit dives share them.
/// Every rule lives in an event of its own box and looks at that box alone.
class DiveEntryForm : public Form {
 public:
  /// Where the near-copies differ in their design.
  struct Differences {
    std::string repDive;         // caption of Check7
    std::size_t pathLength = 0;  // most characters of Text21, 0 for no limit
    std::string severalInfo;     // captions of the last two pages
    std::string linkedGraphic;
  };
  DiveEntryForm(Shell& app, std::string name, Design design, const Differences& differences);

  /// Tests the five required boxes; an empty one is named in a message and leaves "ende" in Text12.
  void Felder();

  TabStrip SSTab1;
  TextBox Text2{*this, "Text2", {.maxLength = 20}};
  TextBox Text3{*this, "Text3", {.maxLength = 20}};
  TextBox Text4{*this, "Text4", {.maxLength = 20}};
  TextBox Text5{*this, "Text5", {.maxLength = 2}};
  TextBox Text6{*this, "Text6", {.maxLength = 2}};
  TextBox Text7{*this, "Text7", {.maxLength = 4}};
  TextBox Text8{*this, "Text8", {.maxLength = 20}};
  TextBox Text9{*this, "Text9", {.maxLength = 3}};
  TextBox Text10{*this, "Text10", {.maxLength = 4}};
  TextBox Text1{*this, "Text1", {.text = "1", .maxLength = 4, .locked = true}};
  TextBox Text11{*this, "Text11", {.multiLine = true}};
  OptionButton Option1{*this, "Option1", "Saltwater"};
  OptionButton Option2{*this, "Option2", "Sweet wat."};
  OptionButton Option3{*this, "Option3", "from shore"};
  OptionButton Option4{*this, "Option4", "from boat"};
  CheckBox Check6{*this, "Check6", "de&co-stop"};
  CheckBox Check7;
  TextBox Text14{*this, "Text14", {.maxLength = 20}};
  TextBox Text15{*this, "Text15", {.maxLength = 20}};
  TextBox Text16{*this, "Text16", {.maxLength = 6}};
  TextBox Text19{*this, "Text19", {.maxLength = 3}};
  OptionButton Option5{*this, "Option5", "&Aluminum"};
  OptionButton Option6{*this, "Option6", "&Steel"};
  TextBox Text17{*this, "Text17", {.maxLength = 3}};
  TextBox Text13{*this, "Text13", {.maxLength = 4}};
  TextBox Text18{*this, "Text18", {.maxLength = 4}};
  OptionButton Option7{*this, "Option7"};
  OptionButton Option8{*this, "Option8"};
  OptionButton Option9{*this, "Option9"};
  TextBox Text21;
  Button Command5{*this, "Command5", "Browse"};
  Button Command1;
  Frame Frame1{*this, "Frame1"};
  Frame Frame2{*this, "Frame2"};
  Frame Frame3{*this, "Frame3", "Tank"};
  Frame Frame5{*this, "Frame5", "View"};
  Image Image4{*this, "Image4"};
  TextBox Text12{*this, "Text12", {.visible = false}};
  TextBox Text20{*this, "Text20", {.visible = false}};
  CommonDialog CommonDialog1;

 protected:
  /// After the rule of a box has run, and after a click on an option or a check box.
  virtual void edited() {}

  /// Whether the required boxes are filled; if not, the user has been told.
  bool complete();

  Shell& app_;

 private:
  void placeOnPages();
  void bindColumns();
  void bindRule(TextBox& box, const Event& rule);
  void bindDate();
  void bindNumbers();
  void jumpAbove(const TextBox& box, double limit, TextBox& next);
  void leaveDatePart(TextBox& box, double last, const char* message);
  void leaveYear();
  void keepNotNegative(TextBox& box);
  void leaveDiveTime();
  void leaveDepth();
  void browse();
  void link(const std::string& path);
};

}  // namespace nautrel
