#include "common/files.hpp"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <system_error>
#include <unistd.h>

#include "common/runtime_failure.hpp"

namespace benchlog {
namespace fs = std::filesystem;

bool FileExists(const std::string& path) {
  std::error_code error;
  return !path.empty() && fs::is_regular_file(path, error);
}

bool FolderExists(const std::string& path) {
  std::error_code error;
  return !path.empty() && fs::is_directory(path, error);
}

std::uint64_t FileLength(const std::string& path) {
  std::error_code error;
  const auto size = fs::file_size(path, error);
  if (error) throw FileNotFound();
  return size;
}

std::string ReadWholeFile(const std::string& path) {
  if (!FileExists(path)) throw FileNotFound();  // a folder opens as a stream but has no length
  std::ifstream in(path, std::ios::binary);
  if (!in) throw FileNotFound();
  std::string text;
  in.seekg(0, std::ios::end);
  text.resize(static_cast<std::size_t>(in.tellg()));
  in.seekg(0);
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  return text;
}

void WriteWholeFile(const std::string& path, std::string_view text) {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  if (!out) throw PathFileAccessError();
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!out) throw PathFileAccessError();
}

void AppendToFile(const std::string& path, std::string_view text) {
  std::ofstream out(path, std::ios::binary | std::ios::app);
  if (!out) throw PathFileAccessError();
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  if (!out) throw PathFileAccessError();
}

bool IsReadOnly(const std::string& path) {
  if (!FileExists(path)) return false;
  // access() grants an administrator everything, so a file that no one may write counts as
  // read-only as well, like the read-only attribute it stands for.
  std::error_code error;
  const auto perms = fs::status(path, error).permissions();
  const auto anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  return ::access(path.c_str(), W_OK) != 0 || (!error && (perms & anyWrite) == fs::perms::none);
}

void DeleteFileIfExists(const std::string& path) {
  std::error_code error;
  fs::remove(path, error);
}

void ReplaceFile(const std::string& from, const std::string& to) {
  std::error_code error;
  fs::rename(from, to, error);
  if (!error) return;
  // Another file system: copy beside the target first, then rename there.
  if (!FileExists(from)) throw FileNotFound();
  const std::string beside = to + ".new";
  fs::copy_file(from, beside, fs::copy_options::overwrite_existing, error);
  if (!error) fs::rename(beside, to, error);
  if (error) {
    std::error_code ignored;
    fs::remove(beside, ignored);
    throw PathFileAccessError();
  }
  fs::remove(from, error);
}

}  // namespace benchlog
