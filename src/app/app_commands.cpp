#include "app/app_commands.hpp"

#include <cstdlib>

#include "app/configuration_file.hpp"
#include "session/dataset_paths.hpp"
#include "app/frm_about.hpp"
#include "app/menu_tree.hpp"
#include "app/recent_files.hpp"
#include "common/files.hpp"
#include "common/paths.hpp"
#include "dataset/line_ends.hpp"
#include "dataset/load_dataset_index.hpp"
#include "session/frm_view.hpp"

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
  session.dataset.DatFile = LowerCaseDatasetPath(path);
  AddToMRUList(session, platform.settings, session.dataset.DatFile);
  session.dataset.DatFilePath = FolderOf(session.dataset.DatFile);
  platform.settings.SaveSetting("Settings", "LastDatFullName", session.dataset.DatFile);
  platform.settings.SaveSetting("Settings", "LastDatDirectory", session.dataset.DatFilePath);
  platform.settings.SaveSetting("Settings", "PhotoDir", session.dataset.DatFilePath);
  OfferDatasetLineEndConversion(session.dataset.DatFile, platform);
  LoadDatasetIndex(session, platform);
}

void OfferDatasetLineEndConversion(const std::string& datasetPath, Platform& platform) {
  OfferCrLfConversion(datasetPath,
                      "If you answer No, the dataset can be viewed and exported, but every command that would "
                      "rewrite it is refused.",
                      platform);
}

void mnuOpenDat(Session& session, Platform& platform) {
  session.dataset.DatFilePath = FolderOf(platform.settings.GetSetting("Settings", "LastDatFullName", DefaultFolder()));
  FileDialogRequest request;
  request.filter = "Data Files (*.dat)|*.dat";
  request.title = "Open Dat File";
  request.initDir = session.dataset.DatFilePath;
  request.defaultExt = "dat";
  OpenDataset(session, platform, platform.ui.FileDialog(request));
}

void mnuFileMRUItem_Click(Session& session, Platform& platform, int n) {
  if (n < 1 || n > static_cast<int>(session.shell.MRUList.size())) return;
  OpenDataset(session, platform, session.shell.MRUList[static_cast<std::size_t>(n - 1)]);
}

void mnuOpenCounty(Session& session, Platform& platform) {
  FileDialogRequest request;
  request.filter = "County Files (County.*)|County.*";
  request.title = "Open County File";
  request.fileName = platform.settings.GetSetting("Settings", "LastCountyFullName", "");
  request.initDir = platform.settings.GetSetting("Settings", "LastCountyDirectory", DefaultFolder());
  session.shell.CtyFile = platform.ui.FileDialog(request);
  frmView& view = ViewForm(session, platform);
  view.txtViewFile = ReadWholeFile(session.shell.CtyFile);
  view.Caption = "County File - " + session.shell.CtyFile;
  platform.ui.ShowModeless(view);
  platform.settings.SaveSetting("Settings", "LastCountyFullName", session.shell.CtyFile);
  platform.settings.SaveSetting("Settings", "LastCountyDirectory", FolderOf(session.shell.CtyFile));
}

void mnuSetBackColor(Session& session, Platform& platform) {
  ChooseColor(platform, "Select Background Color", "BackColor", session.shell.backColor);
}

void mnuSetForColor(Session& session, Platform& platform) {
  ChooseColor(platform, "Select Foreground Color", "ForeColor", session.shell.foreColor);
}

void mnuBenchlogHlp(Session& session, Platform& platform) {
  const std::string& file = session.config.helpFile;
  const bool relative = !file.empty() && !IsPathSeparator(file.front());
  platform.ui.ShowHelp(ResolvePathIgnoringCase(relative ? JoinPath(platform.paths.appPath, file) : file));
}

void mnuHelpAbout(Session& session, Platform& platform) {
  platform.ui.ShowModal(session.forms.Get<FrmAbout>());
}

void mnuExit(Session& session, Platform&) { session.shell.quitRequested = true; }

}  // namespace benchlog
