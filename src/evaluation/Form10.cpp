// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/Form10.h"

#include "evaluation/logbook_pass.h"

namespace nautrel {

Form10::Form10(Shell& app)
    : GraphForm(app, "Form10", {.caption = "Graph years", .width = 10200, .height = 8400},
                {.categoryTitle = "Years",
                 .valueTitle = "Count",
                 .labels = {"Z1", "Z2", "Z3", "Z4", "Z5", "Z6", "Z7", "Z8", "Z9", "Z10"}},
                "Diagramm Jahre") {
  Frame1.holds({&Option1, &Option2, &Option3, &Option4});
  Frame2.holds({&Label2, &Label1, &Label3});
  Label3.setVisible(false);
  setTabOrder({&Option1, &Option2, &Option3, &Option4, &Command1, &Command2});
  Option1.Click = [this] { Option1_Click(); };
  Option2.Click = [this] { Option2_Click(); };
  Option3.Click = [this] { Option3_Click(); };
  Option4.Click = [this] { Option4_Click(); };
}

void Form10::fill() {
  const int thisYear = desktop().now().year;
  const auto years =
      passOverLogbook(app(), yearColumns(), [&](Recordset& dives, const DiveDone& done) {
        return countYears(dives, thisYear, locale(), done);
      });
  int row = 0;
  for (const auto& [label, value] : years.rows) {
    MSChart1.setRow(++row);
    MSChart1.setRowLabel(label);
    MSChart1.setData(value);
  }
  Label1.setCaption(years.greatestYear);
}

void Form10::Option1_Click() {
  showAs(Chart::Line, false);
}

void Form10::Option2_Click() {
  showAs(Chart::Area3D, true);
}

void Form10::Option3_Click() {
  showAs(Chart::Bars3D, true);
}

void Form10::Option4_Click() {
  showAs(Chart::Bars, false);
}

// The hint how to turn the chart stands in the place of the last dive's year.
void Form10::showAs(Chart::Type type, bool turnable) {
  MSChart1.setChartType(type);
  MSChart1.setAllowDynamicRotation(turnable);
  Label1.setVisible(!turnable);
  Label2.setVisible(!turnable);
  Label3.setVisible(turnable);
}

}  // namespace nautrel
