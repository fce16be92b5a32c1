// Look-ups in the support files, each against its expected result in tests/data/support/cases.txt.
#include <gtest/gtest.h>

#include <functional>
#include <map>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "export/parser/note_header.hpp"
#include "fakes/test_rows.hpp"
#include "support_files/contributors.hpp"
#include "support_files/country_file.hpp"
#include "support_files/monument_category.hpp"

namespace benchlog {
namespace {

using Args = std::vector<std::string>;

// The folder a row names: "fixture" or "committed".
std::string Folder(const std::string& file) {
  return file == "fixture" ? testing::TestData("support/") : testing::SourceSupport();
}
std::string CountryFile(const std::string& file) {
  return file == "fixture" ? testing::TestData("support/country_small.dat") : Folder(file) + kCountryFileName;
}

// Each function with its number of arguments after the file; the fields after them are its result.
const std::map<std::string, std::pair<std::size_t, std::function<std::string(const Args&)>>> kCalls = {
    {"Fips", {2, [](const Args& a) { return FipsIndex(CountryFile(a[0])).LookUp(a[1], a[2]); }}},
    {"Counties", {1, [](const Args& a) { return Join(CountryCountyList(CountryFile(a[0]), a[1]), ","); }}},
    {"Category", {1, [](const Args& a) {
       return MonumentCategory(ReadCategoryTable(Folder(a[0]) + kMonumentCategoryFileName), a[1]);
     }}},
    {"Contributor", {1, [](const Args& a) {
       return ContributorTable::Load(Folder(a[0]) + kContributorsFileName).CodeOf(a[1]);
     }}},
    {"NoteHeader", {1, [](const Args& a) {
       const NoteHeader h = SplitNoteHeader(a[1], ContributorTable::Load(Folder(a[0]) + kContributorsFileName));
       return h.agencyName + "|" + h.agencyCode + "|" + h.year + "|" + h.initials;
     }}},
};

TEST(SupportFiles, LookUpsGiveTheResultsOfTheCaseTable) {
  std::map<std::string, int> used;
  for (const auto& row : testing::ReadRows("support/cases.txt", 85, '|')) {
    const auto call = kCalls.find(row[0]);
    ASSERT_NE(call, kCalls.end()) << row[0];
    const auto& [arguments, function] = call->second;
    ASSERT_GT(row.size(), arguments + 2) << row[0] << " " << row[1];
    const auto end = row.begin() + 2 + static_cast<long>(arguments);
    const Args args(row.begin() + 1, end);
    EXPECT_EQ(function(args), Join(Args(end, row.end()), "|")) << row[0] << "(\"" << Join(args, "\", \"") << "\")";
    ++used[row[0]];
  }
  EXPECT_EQ(used.size(), kCalls.size());
}

TEST(SupportFiles, AMissingFileIsAFileNotFoundFailure) {
  const std::string missing = testing::TestData("support/nowhere/");
  const std::function<void()> reads[] = {
      [&] { CountryStateList(missing + kCountryFileName); }, [&] { CountryCountyList(missing + kCountryFileName, "NC"); },
      [&] { FipsIndex{missing + kCountryFileName}; }, [&] { ReadCategoryTable(missing + kMonumentCategoryFileName); },
      [&] { ContributorCode(missing, "OCO"); },
  };
  for (const auto& read : reads) {
    try {
      read();
      ADD_FAILURE() << "no failure";
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.number, kFileNotFound);
    }
  }
}

}  // namespace
}  // namespace benchlog
