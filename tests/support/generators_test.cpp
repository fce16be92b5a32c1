#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <unistd.h>

#include "common/files.hpp"
#include "support_paths.hpp"

namespace benchlog {
namespace {

namespace fs = std::filesystem;

// The generators of tools/ run again into a scratch folder must write the committed files byte
// for byte: the files in support/ are what the tools make from the source tables.
TEST(SupportGenerators, AreDeterministic) {
  ASSERT_EQ(std::system("python3 --version > /dev/null 2>&1"), 0) << "scripts/setup installs python3";
  const std::string data = test::SourceTables();
  ASSERT_TRUE(FolderExists(data)) << "no source tables at " << data;
  const fs::path out = fs::temp_directory_path() / ("benchlog_support_" + std::to_string(::getpid()));
  fs::remove_all(out);
  const std::string tools = std::string(BENCHLOG_SOURCE_DIR) + "/tools/";
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
    const std::string command = "python3 -B '" + tools + c.tool + "' --data '" + data + "' --out '" + out.string() +
                                "' > /dev/null";
    ASSERT_EQ(std::system(command.c_str()), 0) << command;
    const std::string made = ReadWholeFile((out / c.file).string());
    const std::string committed = ReadWholeFile(test::CommittedSupport() + c.file);
    EXPECT_TRUE(made == committed) << c.file << " differs from what " << c.tool << " makes";
  }
  fs::remove_all(out);
}

}  // namespace
}  // namespace benchlog
