// The installed program: this build installed into a scratch prefix whose bin folder is read-only,
// with HOME and XDG_DATA_HOME in a scratch folder. The installed executable answers --version; on
// the installed tree the program's folder becomes the user's, and a run on the installed sample
// (open it, build its index, export the listings) writes beside the program only there, nothing
// under the prefix.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>

#include "app/app_commands.hpp"
#include "app/configuration_file.hpp"
#include "app/main_window.hpp"
#include "app/program_folder.hpp"
#include "export/export_run_support.hpp"
#include "fakes/folder_snapshot.hpp"

namespace benchlog::testing {
namespace {

namespace fs = std::filesystem;

std::string Quoted(const std::string& path) { return "'" + path + "'"; }

// The files under `folder`, as paths relative to it.
std::set<std::string> FilesUnder(const std::string& folder) {
  std::set<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder))
    if (entry.is_regular_file()) files.insert(fs::relative(entry.path(), folder).string());
  return files;
}

// Runs `command` and returns what it printed and its exit status.
std::pair<std::string, int> RunCommand(const std::string& command) {
  FILE* pipe = ::popen(command.c_str(), "r");
  if (!pipe) return {"", -1};
  std::string out;
  char buffer[256];
  while (std::fgets(buffer, sizeof buffer, pipe)) out += buffer;
  const int status = ::pclose(pipe);
  return {out, WIFEXITED(status) ? WEXITSTATUS(status) : -1};
}

class InstalledProgram : public ExportRunTest {
 protected:
  void SetUp() override {
    ExportRunTest::SetUp();
    ASSERT_EQ(std::system((BENCHLOG_CMAKE_COMMAND " --install " BENCHLOG_BUILD_DIR " --prefix " + Quoted(prefix) +
                           " >/dev/null").c_str()),
              0);
    fs::permissions(bin, fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write,
                    fs::perm_options::remove);
    setenv("HOME", home.c_str(), 1);
    setenv("XDG_DATA_HOME", (home + "/.local/share").c_str(), 1);
  }
  void TearDown() override {
    std::error_code error;
    fs::permissions(bin, fs::perms::owner_write, fs::perm_options::add, error);  // so the folder can go
  }

  const std::string prefix = folder.File("prefix"), bin = prefix + "/bin", data = prefix + "/share/benchlog";
  const std::string home = folder.File("home"), user = home + "/.local/share/Benchlog";
};

TEST_F(InstalledProgram, WritesBesideItselfOnlyInTheUsersFolder) {
  const auto installedFiles = FilesUnder(prefix);
  const auto installed = FolderSnapshot(prefix);
  ASSERT_TRUE(FileExists(bin + "/benchlog"));
  EXPECT_TRUE(FileExists(prefix + "/share/applications/benchlog.desktop"));
  EXPECT_TRUE(FileExists(prefix + "/share/icons/hicolor/scalable/apps/benchlog.svg"));

  const auto [version, status] = RunCommand("QT_QPA_PLATFORM=offscreen " + Quoted(bin + "/benchlog") + " --version");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(version, "Benchlog Version " + VersionText() + "\n");

  fake.platform.paths.appPath = ChooseProgramFolder(bin, user);
  ASSERT_EQ(fake.platform.paths.appPath, user);
  EXPECT_EQ(CheckLoadFiles(fake.platform, session.config), "") << "the support files were copied";
  EXPECT_EQ(fake.platform.paths.supportPath, user + "/");
  EXPECT_TRUE(FileExists(user + "/manual/index.html"));

  fake.ui.fileAnswers.push_back(data + "/samples/sample.dat");
  mnuOpenDat(session, fake.platform);
  EXPECT_EQ(Messages(), std::vector<std::string>{"Index file created."});
  EXPECT_GT(session.dataset.markIndex.Size(), 2u);
  Choose("NC    3200", false, false);
  fs::create_directories(folder.File("out"));
  RunExport(folder.File("out/export.txt"));
  EXPECT_TRUE(Completed());
  EXPECT_GT(FileLength(folder.File("out/export.hcl")), 0u);

  // Beyond the copies of the installed files, the user's folder holds the index alone.
  std::set<std::string> written;
  for (const auto& file : FilesUnder(user))
    if (!FileExists(data + "/" + file)) written.insert(file);
  EXPECT_EQ(written, std::set<std::string>{"sample.ndx"});
  EXPECT_EQ(FilesUnder(prefix), installedFiles);
  EXPECT_TRUE(FolderSnapshot(prefix) == installed) << "a file under the prefix was changed";
}

}  // namespace
}  // namespace benchlog::testing
