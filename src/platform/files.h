// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <filesystem>
#include <string>

namespace nautrel {

/// A path of the program, in UTF-8, as the file system's own.
std::filesystem::path nativePath(const std::string& path);
/// A path of the file system as the program names it.
std::string utf8(const std::filesystem::path& path);

/// The absolute path that a path leads to by its own links, one that points at nothing included.
std::filesystem::path followLinks(const std::filesystem::path& path);

/// True if both name one file, by whatever spelling or link. A file that does not exist yet is
/// known by its folder and its name.
bool sameFile(const std::filesystem::path& one, const std::filesystem::path& other);

/// False where a file plainly cannot be written: a folder, a missing folder, no permission. Touches
/// nothing; true is no promise.
bool canBeWritten(const std::filesystem::path& path);

/// What each system answers in its own way.
/// @{
bool sameName(const std::filesystem::path& one, const std::filesystem::path& other);
bool mayWrite(const std::filesystem::path& file);
bool mayMakeFileIn(const std::filesystem::path& folder);
/// Brings a file's content, or the names in a folder, on the disk. False where that fails.
bool syncToDisk(const std::filesystem::path& path);
/// Gives a file another name under which nothing stands. False, without effect, where that fails.
bool moveToFreeName(const std::filesystem::path& file, const std::filesystem::path& name);
/// Lets the same people read and write a new file as one that it is to replace, as far as may be.
void takeRights(const std::filesystem::path& from, const std::filesystem::path& file);
/// @}

}  // namespace nautrel
