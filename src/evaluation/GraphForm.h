// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>

#include "platform/chart.h"
#include "platform/controls.h"
#include "platform/form.h"

namespace nautrel {

class Shell;

/// What both graphs share: the chart, its copy for other programs, and the way out.
class GraphForm : public Form {
 public:
  void Form_Load() override;
  void Command1_Click();
  void Command2_Click();
  /// Nothing calls it: a chart cannot be saved to a file.
  void DiagrammSpeichern();

  Chart MSChart1;
  Button Command1{*this, "Command1", "Copy to clipboard"};
  Button Command2{*this, "Command2", "Close"};
  CommonDialog CommonDialog1;

 protected:
  GraphForm(Shell& app, std::string name, Form::Design design, Chart::Design chart,
            std::string pictureFile);
  /// Counts the dives and fills the chart.
  virtual void fill() = 0;
  Shell& app() const { return app_; }

 private:
  Shell& app_;
};

}  // namespace nautrel
