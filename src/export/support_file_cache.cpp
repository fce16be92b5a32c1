#include "export/support_file_cache.hpp"

#include <filesystem>
#include <system_error>

#include "common/runtime_failure.hpp"

namespace benchlog {

FileStamp StampOfFile(const std::string& path) {
  std::error_code error;
  const std::filesystem::path file(path);
  if (!std::filesystem::is_regular_file(file, error)) throw FileNotFound();
  const auto size = std::filesystem::file_size(file, error);
  if (error) throw FileNotFound();
  const auto modified = std::filesystem::last_write_time(file, error);
  if (error) throw FileNotFound();
  return FileStamp{size, static_cast<std::int64_t>(modified.time_since_epoch().count())};
}

}  // namespace benchlog
