// SPDX-License-Identifier: GPL-2.0-or-later
#include "store/numbering.h"

#include "store/contract.h"

namespace nautrel {

void renumber(Workspace& workspace, const std::string& path, double start,
              const NumberingProgress& progress) {
  auto database = workspace.OpenDatabase(path);
  auto dives = database.OpenRecordset(Tabelle::Logbuch, {"Nr"});
  dives.MoveFirst();
  const int count = dives.RecordCount();
  if (progress) progress(0, count);
  for (int step = 0; !dives.Eof(); dives.MoveNext()) {
    dives.Edit();
    dives.setField(Feld::Nr, start + step);
    dives.Update();
    ++step;
    if (progress) progress(step, count);
  }
  dives.MoveFirst();
}

}  // namespace nautrel
