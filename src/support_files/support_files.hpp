#pragma once
// The support tables a command consults for every Description (contributors, monument
// categories), kept for the run. A table is read at its first use; at the start of each command
// the session's SupportFiles is refreshed, and a table whose file changed since it was read
// (size or modification time) is read again at its next use, so an edited table takes effect
// from the next command on and never in the middle of one.
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>

#include "platform/clock.hpp"
#include "support_files/contributors.hpp"
#include "support_files/country_file.hpp"
#include "support_files/monument_category.hpp"

namespace benchlog {

// What tells one version of a file from another.
struct FileStamp {
  std::uintmax_t size = 0;
  std::int64_t modified = 0;  // modification time in the file system's clock ticks
  bool operator==(const FileStamp&) const = default;
};

// The stamp of an existing regular file; throws RuntimeFailure FileNotFound when there is none.
FileStamp StampOfFile(const std::string& path);

// How often, at most, a refresh asks the file system for the stamps: commands that follow one
// another quickly (a script of menu commands, a test) ask once.
inline constexpr Clock::Duration kStampRecheck = std::chrono::milliseconds(2);

class SupportFiles {
 public:
  // At the start of a command: the support folder (ending in a separator) and the platform
  // clock's time. A new folder forgets every table; otherwise a table whose file's stamp changed
  // is forgotten, the stamps being asked at most once per kStampRecheck.
  void Refresh(const std::string& folder, Clock::TimePoint now);
  const std::string& Folder() const { return folder_; }

  // The tables, read at their first use after a refresh. Throw RuntimeFailure FileNotFound when
  // the file is missing. Safe to call from several threads.
  std::shared_ptr<const ContributorTable> Contributors();
  std::shared_ptr<const CategoryTable> MonumentCategories();
  // The FIPS look-up of "Country.dat", built at the first county look-up and kept.
  std::shared_ptr<const FipsIndex> Fips();

 private:
  template <typename Table>
  struct Slot {
    std::shared_ptr<const Table> table;
    FileStamp stamp;
  };
  template <typename Table, typename Load>
  std::shared_ptr<const Table> Get(Slot<Table>& slot, const char* fileName, Load load);
  template <typename Table>
  void ForgetIfChanged(Slot<Table>& slot, const char* fileName);

  std::mutex mutex_;
  std::string folder_;
  Clock::TimePoint lastAsked_{};
  bool asked_ = false;
  Slot<ContributorTable> contributors_;
  Slot<CategoryTable> categories_;
  Slot<FipsIndex> fips_;
};

}  // namespace benchlog
