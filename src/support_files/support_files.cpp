#include "support_files/support_files.hpp"

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

void SupportFiles::Refresh(const std::string& folder, Clock::TimePoint now) {
  std::lock_guard lock(mutex_);
  if (folder != folder_) {
    folder_ = folder;
    contributors_ = {};
    categories_ = {};
    fips_ = {};
  } else if (asked_ && now - lastAsked_ < kStampRecheck) {
    return;
  }
  asked_ = true;
  lastAsked_ = now;
  ForgetIfChanged(contributors_, kContributorsFileName);
  ForgetIfChanged(categories_, kMonumentCategoryFileName);
  ForgetIfChanged(fips_, kCountryFileName);
}

template <typename Table>
void SupportFiles::ForgetIfChanged(Slot<Table>& slot, const char* fileName) {
  if (!slot.table) return;
  try {
    if (StampOfFile(folder_ + fileName) == slot.stamp) return;
  } catch (const RuntimeFailure&) {
  }
  slot = {};
}

template <typename Table, typename Load>
std::shared_ptr<const Table> SupportFiles::Get(Slot<Table>& slot, const char* fileName, Load load) {
  std::lock_guard lock(mutex_);
  if (!slot.table) {
    const std::string path = folder_ + fileName;
    const FileStamp stamp = StampOfFile(path);
    slot.table = std::make_shared<const Table>(load(path));
    slot.stamp = stamp;
  }
  return slot.table;
}

std::shared_ptr<const ContributorTable> SupportFiles::Contributors() {
  return Get(contributors_, kContributorsFileName, ContributorTable::Load);
}

std::shared_ptr<const CategoryTable> SupportFiles::MonumentCategories() {
  return Get(categories_, kMonumentCategoryFileName, ReadCategoryTable);
}

std::shared_ptr<const FipsIndex> SupportFiles::Fips() {
  return Get(fips_, kCountryFileName, [](const std::string& path) { return FipsIndex(path); });
}

}  // namespace benchlog
