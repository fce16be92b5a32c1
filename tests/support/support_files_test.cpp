#include <gtest/gtest.h>

#include <filesystem>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "support_files/support_files.hpp"

namespace benchlog {
namespace {

using testing::ManualClock;
using testing::TempFolder;

// The tables stay as read for the whole of a command; the refresh at the start of the next
// command sees an edit (also one that keeps the size), a removed file and a new folder.
TEST(SupportFiles, EditsTakeEffectAtTheNextRefresh) {
  TempFolder folder;
  const std::string support = folder.Path() + "/";
  const std::string path = folder.Write("Monument_Category.dat", "D DB\r\n");
  ManualClock clock;
  SupportFiles files;
  auto category = [&] { return MonumentCategory(*files.MonumentCategories(), "DB"); };
  auto nextCommand = [&] {
    clock.now += kStampRecheck;
    files.Refresh(support, clock.Now());
  };

  files.Refresh(support, clock.Now());
  EXPECT_EQ(category(), "D");
  WriteWholeFile(path, "L DB\r\n");
  std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) + std::chrono::seconds(5));
  EXPECT_EQ(category(), "D");  // within the command
  files.Refresh(support, clock.Now());
  EXPECT_EQ(category(), "D");  // a refresh sooner than kStampRecheck asks nothing
  nextCommand();
  EXPECT_EQ(category(), "L");

  std::filesystem::remove(path);
  nextCommand();
  EXPECT_THROW(category(), RuntimeFailure);

  TempFolder other;
  other.Write("Monument_Category.dat", "P DB\r\n");
  files.Refresh(other.Path() + "/", clock.Now());
  EXPECT_EQ(category(), "P");
}

}  // namespace
}  // namespace benchlog
