#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <thread>

#include "common/files.hpp"
#include "common/runtime_failure.hpp"
#include "export/export_test_support.hpp"
#include "export/monument_category.hpp"
#include "export/note_header.hpp"
#include "export/support_file_cache.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog {
namespace {

using testing::DataLine;
using testing::TempFolder;

TEST(MonumentCategory, FirstLineWhoseCodeFromColumnThreeMatches) {
  TempFolder folder;
  folder.Write("Monument_Category.dat", "D DB\r\nL 57  \r\nX DB\r\nB  SP\r\nQ\r\nR db\r\n");
  const std::string support = folder.Path() + "/";
  struct Case {
    std::string code, category;
  };
  const Case cases[] = {{"DB", "D"}, {"57", "L"}, {"SP", "B"}, {"db", "R"}, {"D", ""}, {"ZZ", ""}, {"", "Q"}};
  for (const auto& c : cases) EXPECT_EQ(MonumentCategory(support, c.code), c.category) << c.code;
}

TEST(MonumentCategory, MissingFileFails) {
  TempFolder folder;
  try {
    MonumentCategory(folder.Path() + "/", "DB");
    FAIL() << "no failure";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kFileNotFound);
  }
}

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

TEST(SplitNoteHeader, WordsOfTheHeadLine) {
  const auto contributors = ContributorTable::Load(testing::SourceSupportPath() + "Contrib.dat");
  struct Case {
    std::string text, name, code, year, initials;
  };
  const Case cases[] = {
      {"DESCRIBED BY COASTAL CONTROL OFFICE 1933 (RDH)", "US COASTAL CONTROL OFFICE", "CCO", "1933", "RDH "},
      {"RECOVERY NOTE BY US POWER SQUADRON 1985 (WKB)    ", "US POWER SQUADRON", "USPSQD", "1985", "WKB "},
      {"RECOVERY NOTE BY  ORBIS  CONTROL OFFICE 2004", "ORBIS CONTROL OFFICE", "OCO", "2004", ""},
      {"RECOVERY NOTE BY GEOCACHING 2010 (SMITH)", "GEOCACHING", "GEOCAC", "2010", "SMITH "},
      {"DESCRIBED BY ACME SURVEYS 19 (A)B)", "ACME SURVEYS 19", "", "", "A B "},
      {"DESCRIBED BY", "", "", "", ""},
  };
  for (const auto& c : cases) {
    const NoteHeader header = SplitNoteHeader(c.text, contributors);
    EXPECT_EQ(header.agencyName, c.name) << c.text;
    EXPECT_EQ(header.agencyCode, c.code) << c.text;
    EXPECT_EQ(header.year, c.year) << c.text;
    EXPECT_EQ(header.initials, c.initials) << c.text;
  }
}

}  // namespace
}  // namespace benchlog
