// The program's folder: the executable's own when it holds the configuration and may be written,
// else the user's folder, filled from the installed data folder without overwriting.
#include <gtest/gtest.h>

#include <filesystem>

#include "app/program_folder.hpp"
#include "common/files.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog {
namespace {

namespace fs = std::filesystem;
using testing::TempFolder;

TEST(ProgramFolder, IsTheExecutablesFolderOnlyWhenItHoldsTheConfigurationAndMayBeWritten) {
  struct Case {
    bool iniBesideExe, exeWritable, expectExeFolder;
  };
  for (const Case c : {Case{true, true, true}, Case{true, false, false}, Case{false, true, false}}) {
    SCOPED_TRACE(::testing::Message() << "ini " << c.iniBesideExe << ", writable " << c.exeWritable);
    TempFolder root;
    root.Write("share/benchlog/Benchlog.ini", "ELLIPSOID A=6378137\r\n");
    root.Write("share/benchlog/Towns.txt", "INSTALLED\r\n");
    root.Write("share/benchlog/samples/sample.dat", "SAMPLE\r\n");
    root.Write("user/Towns.txt", "UPDATED BY THE USER\r\n");
    const std::string exe = root.File("bin"), user = root.File("user");
    root.Write(c.iniBesideExe ? "bin/Benchlog.ini" : "bin/benchlog", "");
    if (!c.exeWritable) fs::permissions(exe, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                                        fs::perm_options::remove);

    const std::string chosen = ChooseProgramFolder(exe, user);
    fs::permissions(exe, fs::perms::owner_write, fs::perm_options::add);

    EXPECT_EQ(chosen, c.expectExeFolder ? exe : user);
    EXPECT_EQ(FileExists(root.File("user/Benchlog.ini")), !c.expectExeFolder);
    EXPECT_EQ(FileExists(root.File("user/samples/sample.dat")), !c.expectExeFolder);
    EXPECT_EQ(ReadWholeFile(root.File("user/Towns.txt")), "UPDATED BY THE USER\r\n");
  }
}

TEST(ProgramFolder, InstalledDataLiesInShareBesideTheBinFolder) {
  EXPECT_EQ(InstalledDataFolder("/usr/bin"), "/usr/share/benchlog");
  EXPECT_EQ(InstalledDataFolder("/opt/survey/bin/"), "/opt/survey/share/benchlog");
}

}  // namespace
}  // namespace benchlog
