#pragma once
// The parsed form of a support file, kept between look-ups. The export consults the category and
// contributors tables for every Description, and reading a file each time is what made that slow;
// here a file is read again only when its size or modification time has changed since it was
// last read, so an edited table still takes effect. Even asking the file system for size and
// time costs more than parsing a whole Description, so the stamp is asked again only when
// kStampRecheck has passed since it was last asked: an edit is seen by the look-ups from then on.
#include <chrono>
#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <unordered_map>

namespace benchlog {

// What tells one version of a file from another.
struct FileStamp {
  std::uintmax_t size = 0;
  std::int64_t modified = 0;  // modification time in the file system's clock ticks
  bool operator==(const FileStamp&) const = default;
};

// The stamp of an existing regular file; throws RuntimeFailure FileNotFound when there is none.
FileStamp StampOfFile(const std::string& path);

// How long a stamp, once asked, is taken as the file's: shorter than anyone takes to save an
// edited table, long enough that the stamp is asked a few hundred times a second at most.
inline constexpr std::chrono::milliseconds kStampRecheck{2};

// The table made by `load(path)` from the file at `path`, made again whenever the file's stamp
// differs from the one it was made from. Throws FileNotFound when the file is missing (also when
// it went missing since), and whatever `load` throws. Safe to call from several threads.
template <typename Table>
std::shared_ptr<const Table> CachedSupportTable(const std::string& path,
                                                const std::function<Table(const std::string&)>& load) {
  using Clock = std::chrono::steady_clock;
  struct Entry {
    FileStamp stamp;
    Clock::time_point asked;  // when the stamp was last asked of the file system
    std::shared_ptr<const Table> table;
  };
  static std::mutex mutex;
  static std::unordered_map<std::string, Entry> entries;

  std::lock_guard lock(mutex);
  const Clock::time_point now = Clock::now();
  auto found = entries.find(path);
  if (found != entries.end() && now - found->second.asked < kStampRecheck) return found->second.table;
  const FileStamp stamp = StampOfFile(path);
  if (found != entries.end() && found->second.stamp == stamp) {
    found->second.asked = now;
    return found->second.table;
  }
  auto table = std::make_shared<const Table>(load(path));
  entries[path] = Entry{stamp, now, table};
  return table;
}

}  // namespace benchlog
