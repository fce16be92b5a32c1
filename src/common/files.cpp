#include "common/files.hpp"

#include <filesystem>
#include <fstream>
#include <system_error>
#include <unistd.h>

#include "common/line_writer.hpp"
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
  LineWriter out(path);
  out.Write(text);
  out.Close();
}

void AppendToFile(const std::string& path, std::string_view text) {
  LineWriter out(path, LineWriter::Mode::kAppend);
  out.Write(text);
  out.Close();
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

}  // namespace benchlog
