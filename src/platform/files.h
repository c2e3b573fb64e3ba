#pragma once

#include <filesystem>
#include <string>

namespace nautrel {

/// A path of the program, in UTF-8, as the file system's own.
std::filesystem::path nativePath(const std::string& path);

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
/// @}

}  // namespace nautrel
