// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "evaluation/figures.h"
#include "shell/FrameForm.h"
#include "shell/Modul1.h"
#include "shell/Shell.h"
#include "store/contract.h"

namespace nautrel {

/// Gives all dives to `pass`, a call of (Recordset&, const DiveDone&), with the progress bar for
/// its time, and returns what it makes of them. Raises 3021 without dives.
template <class Pass>
auto passOverLogbook(Shell& app, const Columns& columns, Pass pass) {
  auto dives = app.openLogbook(columns);
  dives.MoveFirst();
  auto& shared = app.Modul1();
  shared.FortschrittMaximum = dives.RecordCount();
  shared.FortschrittAnzeigen();
  auto& bar = app.MDIForm1().ProgressBar1;
  auto figures = pass(dives, [&bar](int counter) { bar.setValue(counter); });
  dives.Close();
  shared.FortschrittBeenden();
  return figures;
}

}  // namespace nautrel
