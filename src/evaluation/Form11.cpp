// SPDX-License-Identifier: GPL-2.0-or-later
#include "evaluation/Form11.h"

#include "evaluation/logbook_pass.h"

namespace nautrel {

Form11::Form11(Shell& app)
    : GraphForm(app, "Form11", {.caption = "Graph month", .width = 10200, .height = 7800},
                {.categoryTitle = "Month",
                 .valueTitle = "Percent",
                 .labels = {"Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct",
                            "Nov", "Dec"}},
                "Diagramm Monate") {
  setTabOrder({&Command2, &Command1});
}

void Form11::fill() {
  const auto shares = passOverLogbook(
      app(), monthColumns(),
      [&](Recordset& dives, const DiveDone& done) { return countMonths(dives, locale(), done); });
  int month = 0;
  for (const auto& share : shares) {
    MSChart1.setRow(++month);
    MSChart1.setData(share);
  }
}

}  // namespace nautrel
