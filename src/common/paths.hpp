#pragma once
// Path helpers. "/" is this system's separator; "\" is accepted as well, since stored paths and
// settings may come from either.
#include <string>
#include <string_view>

namespace benchlog {

inline constexpr char kPathSeparator = '/';

bool IsPathSeparator(char c);
// The folder of a path including its last separator; empty when the path has none.
std::string FolderOf(std::string_view path);
// The path without the extension of its file name (the part before the last "." behind the last
// separator); the whole path when the file name has no ".".
std::string WithoutExtension(std::string_view path);
// The file name without folder and extension; empty when the path lacks a separator or a ".".
std::string BaseName(std::string_view path);
// The file name with its extension, without the folder.
std::string FileNameOf(std::string_view path);
// Joins a folder and a name with one separator between them.
std::string JoinPath(std::string_view folder, std::string_view name);

}  // namespace benchlog
