#include "app/app_commands.hpp"

#include <cstdlib>

#include "app/configuration_file.hpp"
#include "app/dataset_path.hpp"
#include "app/frm_about.hpp"
#include "app/menu_tree.hpp"
#include "app/recent_files.hpp"
#include "common/files.hpp"
#include "common/paths.hpp"
#include "dataset/load_dataset_index.hpp"
#include "view/frm_view.hpp"

namespace benchlog {
namespace {

// Where a file dialog starts when no folder was remembered: the user's home folder.
std::string DefaultFolder() {
  const char* home = std::getenv("HOME");
  return home && *home ? JoinPath(home, "") : std::string("/");
}

// A cancelled colour dialog changes nothing.
void ChooseColor(Platform& platform, const char* title, const char* key, std::uint32_t& color) {
  const auto chosen = platform.ui.ColorDialog(title, color);
  if (!chosen) return;
  color = *chosen;
  platform.settings.SaveSetting("Settings", key, std::to_string(color));
}

}  // namespace

void OpenDataset(Session& session, Platform& platform, const std::string& path) {
  session.DatFile = LowerCaseDatasetPath(path);
  AddToMRUList(session, platform.settings, session.DatFile);
  session.DatFilePath = FolderOf(session.DatFile);
  platform.settings.SaveSetting("Settings", "LastDatFullName", session.DatFile);
  platform.settings.SaveSetting("Settings", "LastDatDirectory", session.DatFilePath);
  platform.settings.SaveSetting("Settings", "PhotoDir", session.DatFilePath);
  LoadDatasetIndex(session, platform);
}

void mnuOpenDat(Session& session, Platform& platform) {
  session.DatFilePath = FolderOf(platform.settings.GetSetting("Settings", "LastDatFullName", DefaultFolder()));
  FileDialogRequest request;
  request.filter = "Data Files (*.dat)|*.dat";
  request.title = "Open Dat File";
  request.initDir = session.DatFilePath;
  request.defaultExt = "dat";
  OpenDataset(session, platform, platform.ui.FileDialog(request));
}

void mnuFileMRUItem_Click(Session& session, Platform& platform, int n) {
  if (n < 1 || n > static_cast<int>(session.MRUList.size())) return;
  OpenDataset(session, platform, session.MRUList[static_cast<std::size_t>(n - 1)]);
}

void mnuOpenCounty(Session& session, Platform& platform) {
  FileDialogRequest request;
  request.filter = "County Files (County.*)|County.*";
  request.title = "Open County File";
  request.fileName = platform.settings.GetSetting("Settings", "LastCountyFullName", "");
  request.initDir = platform.settings.GetSetting("Settings", "LastCountyDirectory", DefaultFolder());
  session.CtyFile = platform.ui.FileDialog(request);
  frmView& view = ViewForm(session, platform);
  view.txtViewFile = ReadWholeFile(session.CtyFile);
  view.Caption = "County File - " + session.CtyFile;
  platform.ui.ShowModeless(view);
  platform.settings.SaveSetting("Settings", "LastCountyFullName", session.CtyFile);
  platform.settings.SaveSetting("Settings", "LastCountyDirectory", FolderOf(session.CtyFile));
}

void mnuSetBackColor(Session& session, Platform& platform) {
  ChooseColor(platform, "Select Background Color", "BackColor", session.backColor);
}

void mnuSetForColor(Session& session, Platform& platform) {
  ChooseColor(platform, "Select Foreground Color", "ForeColor", session.foreColor);
}

void mnuBenchlogHlp(Session& session, Platform& platform) {
  const std::string& file = session.config.helpFile;
  const bool relative = !file.empty() && !IsPathSeparator(file.front());
  platform.ui.ShowHelp(ResolvePathIgnoringCase(relative ? JoinPath(platform.paths.appPath, file) : file));
}

void mnuHelpAbout(Session& session, Platform& platform) {
  platform.ui.ShowModal(session.forms.Get<FrmAbout>());
}

void mnuExit(Session& session, Platform&) { session.quitRequested = true; }

void RegisterAppCommands(CommandTable& table) {
  table.Register("mnuOpenDat", mnuOpenDat);
  table.Register("mnuOpenCounty", mnuOpenCounty);
  for (int n = 1; n <= kMaxRecentFiles; ++n)
    table.Register(MruItemName(n), [n](Session& s, Platform& p) { mnuFileMRUItem_Click(s, p, n); });
  table.Register("mnuSetBackColor", mnuSetBackColor);
  table.Register("mnuSetForColor", mnuSetForColor);
  table.Register("mnuBenchlogHlp", mnuBenchlogHlp);
  table.Register("mnuHelpAbout", mnuHelpAbout);
  table.Register("mnuExit", mnuExit);
}

}  // namespace benchlog
