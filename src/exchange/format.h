// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace nautrel::exchange {

/// The forms in which dives come in and go out.
enum class Format { Uddf, Csv };

/// By a file's ending (.uddf, .xml; .csv, .tsv, .txt); nothing for any other.
std::optional<Format> formatOf(std::string_view fileName);

/// An import or export that cannot be done, with one sentence for the user: what is wrong, and the
/// line or element where. Nothing was written.
struct Refused {
  std::string text;
};

/// Told how far the work is; false cancels it.
using Progress = std::function<bool(std::size_t done, std::size_t all)>;

}  // namespace nautrel::exchange
