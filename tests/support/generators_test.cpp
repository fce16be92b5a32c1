#include <gtest/gtest.h>

#include <cstdlib>

#include "common/files.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog {
namespace {

// The generators of tools/ run again into a scratch folder must write the committed files byte
// for byte: the files in support/ are what the tools make from the source tables.
TEST(SupportGenerators, AreDeterministic) {
  ASSERT_EQ(std::system("python3 --version > /dev/null 2>&1"), 0) << "python3 is not installed";
  const std::string data = testing::SourceTables();
  ASSERT_TRUE(FolderExists(data)) << "no source tables at " << data;
  const testing::TempFolder out;
  const std::string tools = BENCHLOG_SOURCE_DIR "/tools/";
  struct Case { const char* tool; const char* file; };
  const Case cases[] = {
      {"make_country.py", "Country.dat"},
      {"make_towns.py", "Towns.txt"},
      {"make_contrib.py", "Contrib.dat"},
      {"make_monument_category.py", "Monument_Category.dat"},
      {"make_groups.py", "Groups.dat"},
      {"make_horizontal_datum.py", "Horizontal_Datum.dat"},
      {"make_ellipsoid.py", "Ellipsoid.dat"},
      {"make_sample_dataset.py", "samples/sample.dat"},
  };
  for (const auto& c : cases) {
    const std::string command = "python3 -B '" + tools + c.tool + "' --data '" + data + "' --out '" + out.Path() +
                                "' > /dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    const std::string made = ReadWholeFile(out.File(c.file));
    const std::string committed = ReadWholeFile(testing::SourceSupport() + c.file);
    EXPECT_TRUE(made == committed) << c.file << " differs from what " << c.tool << " makes";
  }
}

}  // namespace
}  // namespace benchlog
