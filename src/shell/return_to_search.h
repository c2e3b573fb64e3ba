// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace nautrel {

class Shell;

/// A record window that a search has opened closes: the search comes back as it was, and the list
/// of found dives goes. Without such a search it does nothing.
void returnToSearch(Shell& app);

}  // namespace nautrel
