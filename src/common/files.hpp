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
// Creates or replaces the file through LineWriter: the old file stays as it was unless the new
// one was written whole. Throws RuntimeFailure (WriteFailure) when the file cannot be written.
void WriteWholeFile(const std::string& path, std::string_view text);
// Adds to the end of the file (creating it); a failed write cuts it back to its old length.
void AppendToFile(const std::string& path, std::string_view text);
// Exists and cannot be opened for writing, or has no write permission at all (also for root).
bool IsReadOnly(const std::string& path);
void DeleteFileIfExists(const std::string& path);

}  // namespace benchlog
