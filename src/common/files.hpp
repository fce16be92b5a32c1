#pragma once
// Whole-file operations on byte strings. Paths are the system's own; nothing here keeps a file open.
#include <cstdint>
#include <string>
#include <string_view>

namespace benchlog {

bool FileExists(const std::string& path);  // a regular file (not a folder)
bool FolderExists(const std::string& path);
// Length in bytes; throws RuntimeFailure "File not found" when the file is missing.
std::uint64_t FileLength(const std::string& path);
std::string ReadWholeFile(const std::string& path);  // throws "File not found"
// Creates or overwrites; throws "Path/File access error" when the file cannot be written.
void WriteWholeFile(const std::string& path, std::string_view text);
void AppendToFile(const std::string& path, std::string_view text);
// Exists and cannot be opened for writing, or has no write permission at all (also for root).
bool IsReadOnly(const std::string& path);
void DeleteFileIfExists(const std::string& path);
// Moves `from` over `to` in one step (rename on the same file system, copy and rename otherwise),
// so that `to` is always either the old file or the new one, whole. Throws "File not found" when
// `from` is missing and "Path/File access error" when the move fails; `to` is then untouched.
void ReplaceFile(const std::string& from, const std::string& to);

}  // namespace benchlog
