#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "export/export_test_support.hpp"
#include "export/monument_category.hpp"
#include "export/support_file_cache.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog {
namespace {

using testing::DataLine;
using testing::TempFolder;

// The file is read anew for each marker line: an edited table takes effect for the lines read
// once the stamp is asked again (kStampRecheck after the last asking), also when the edit keeps
// the file's size.
TEST(MonumentCategory, EditedFileIsReadAnewByTheParser) {
  TempFolder folder;
  const std::string support = folder.Path() + "/";
  const std::string path = folder.Write("Monument_Category.dat", "D DB\r\n");
  folder.Write("Contrib.dat", "OCO    FED    ORBIS CONTROL OFFICE\r\n");
  const std::vector<std::string> lines = {DataLine("AB1234", {{8, "_MARKER: DB = DISK"}})};
  auto categoryNow = [&] {
    std::this_thread::sleep_for(kStampRecheck + std::chrono::milliseconds(1));
    MarkRecord record;
    std::string ErrMsg;
    ParseDescription("AB1234", lines, 0, {}, ErrMsg, record, support);
    return std::string(record.Category.View());
  };
  EXPECT_EQ(categoryNow(), "D");
  WriteWholeFile(path, "L DB\r\n");
  std::filesystem::last_write_time(path, std::filesystem::last_write_time(path) + std::chrono::seconds(5));
  EXPECT_EQ(categoryNow(), "L");
  WriteWholeFile(path, "C 57\r\nP DB\r\n");
  EXPECT_EQ(categoryNow(), "P");
  std::filesystem::remove(path);
  EXPECT_THROW(categoryNow(), RuntimeFailure);
}

TEST(Contributors, EditedTableIsReadAnewByTheParser) {
  TempFolder folder;
  const std::string support = folder.Path() + "/";
  folder.Write("Monument_Category.dat", "D DB\r\n");
  const std::string path = folder.Write("Contrib.dat", "OCO    FED    ORBIS CONTROL OFFICE\r\n");
  const std::vector<std::string> lines = {DataLine(
      "AB1234", {{8, ".The horizontal coordinates were adjusted by GPS and adjusted by the Orbis Control "
                     "Office in 1997."}})};
  auto agencyNow = [&] {
    std::this_thread::sleep_for(kStampRecheck + std::chrono::milliseconds(1));
    MarkRecord record;
    std::string ErrMsg;
    ParseDescription("AB1234", lines, 0, {}, ErrMsg, record, support);
    return std::string(record.AdjAgency.Trimmed());
  };
  EXPECT_EQ(agencyNow(), "OCO");
  WriteWholeFile(path, "ORBIS  FED    ORBIS CONTROL OFFICE\r\nUSGS   FED    US GEOLOGICAL SURVEY\r\n");
  EXPECT_EQ(agencyNow(), "ORBIS");
}

}  // namespace
}  // namespace benchlog
