// Look-ups in the support files, each against its expected result in tests/data/support/cases.txt,
// and when an edit of a file takes effect.
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "export/parser/note_header.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "support_files/contributors.hpp"
#include "support_files/country_file.hpp"
#include "support_files/monument_category.hpp"
#include "support_files/support_files.hpp"
#include "support_files/towns_file.hpp"

namespace benchlog {
namespace {

using Args = testing::CallArgs;
using testing::ManualClock;
using testing::TempFolder;

// The folder a row names: "fixture", "committed" or "missing".
std::string Folder(const std::string& file) {
  return file == "fixture" ? testing::TestData("support/") : file == "missing" ? testing::TestData("support/nowhere/")
                                                                                 : testing::SourceSupport();
}
std::string CountryFile(const std::string& file) {
  return file == "fixture" ? testing::TestData("support/country_small.dat") : Folder(file) + kCountryFileName;
}

// The first argument of a reader of a file is the file: "fixture", "committed" or "missing".
const testing::CallTable kCalls = {
    {"Fips", {3, [](const Args& a) { return FipsIndex(CountryFile(a[0])).LookUp(a[1], a[2]); }}},
    {"States", {1, [](const Args& a) { return Join(CountryStateList(CountryFile(a[0])), ","); }}},
    {"StateIndex", {1, [](const Args& a) {
       const FipsIndex index(CountryFile(a[0]));
       return index.StateIndex() + "|" + std::to_string(index.LineCount());
     }}},
    {"Counties", {2, [](const Args& a) { return Join(CountryCountyList(CountryFile(a[0]), a[1]), ","); }}},
    {"Category", {2, [](const Args& a) {
       return MonumentCategory(ReadCategoryTable(Folder(a[0]) + kMonumentCategoryFileName), a[1]);
     }}},
    {"Contributor", {2, [](const Args& a) {
       return ContributorTable::Load(Folder(a[0]) + kContributorsFileName).CodeOf(a[1]);
     }}},
    {"ContributorGroup", {2, [](const Args& a) {
       return ContributorTable::Load(Folder(a[0]) + kContributorsFileName).GroupOf(a[1]);
     }}},
    {"ContributorCount", {1, [](const Args& a) {
       return std::to_string(ContributorTable::Load(Folder(a[0]) + kContributorsFileName).Size());
     }}},
    {"NoteHeader", {2, [](const Args& a) {
       const NoteHeader h = SplitNoteHeader(a[1], ContributorTable::Load(Folder(a[0]) + kContributorsFileName));
       return h.agencyName + "|" + h.agencyCode + "|" + h.year + "|" + h.initials;
     }}},
    {"Town", {1, [](const Args& a) {
       const TownLine town = ReadTownLine(a[0]);
       char degrees[64];
       std::snprintf(degrees, sizeof degrees, "|%.9f|%.9f", town.latitude, town.longitude);
       return town.name + degrees;
     }}},
    {"TownNames", {1, [](const Args& a) {
       std::string names;
       LineReader reader(Folder(a[0]) + kTownsFileName);
       for (std::string line; reader.ReadLine(line);) names += ReadTownLine(line).name + ",";
       return names;
     }}},
    {"Extent", {4, [](const Args& a) {
       return TownInExtent({"T", 36.0, 79.0}, std::stod(a[0]), std::stod(a[1]), std::stod(a[2]), std::stod(a[3])) ? "1" : "0";
     }}},
};

TEST(SupportFiles, LookUpsGiveTheResultsOfTheCaseTable) { testing::CheckCalls("support/cases.txt", 108, kCalls); }

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
