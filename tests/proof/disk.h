// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <functional>
#include <string>

namespace nautrel {

/// The disk under the logbook: every file of the database engine goes through it in this program,
/// and it fails when told so. There is one.
class Disk {
 public:
  /// Whole again; what it counts begins at 0, and what files hold now is on the platter. No file
  /// may be open.
  static void heal();
  /// How often the engine has asked it to open, read, write, cut, sync, lock or delete a file.
  static long calls();
  /// The call of that number fails, the first one being 0; with `lasting` all after it do, too.
  static void failAt(long call, bool lasting);
  static bool hasFailed();
  /// The process is killed at that call.
  static void killAt(long call);
  /// The files as they come up again after it failed for good: what was synced stands; of what was
  /// written after that any part may, by `chance` (a number below the given one), and of one write
  /// no more than its beginning.
  static void cutPower(const std::function<int(int)>& chance);
};

}  // namespace nautrel
