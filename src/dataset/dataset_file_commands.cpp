#include "dataset/dataset_file_commands.hpp"

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/line_writer.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/compress_dataset.hpp"
#include "dataset/dataset_size_limit.hpp"
#include "session/dataset_paths.hpp"
#include "dataset/description_file.hpp"
#include "dataset/frm_get_file.hpp"
#include "dataset/line_ends.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {

constexpr const char* kDataFilter = "Data Files (*.dat)|*.dat";
constexpr std::size_t kMaxDeletedPids = 1000;

int BarMaximum(const std::string& path, int bytesPerStep) {
  return FileExists(path) ? static_cast<int>(FileLength(path) / static_cast<std::uint64_t>(bytesPerStep)) : 0;
}

// Shows the progress dialog with new labels and a bar of the dataset's length in 5000-byte steps,
// lets the window repaint, and rebuilds the index.
void ReindexBehindProgress(Session& session, Platform& platform, const char* label) {
  Progress& progress = platform.dlgProcessing;
  progress.lblProcessing = label;
  progress.lblInfo = "Please wait...";
  progress.max = BarMaximum(session.dataset.DatFile, 5000);
  progress.value = 1;
  progress.Show();
  platform.ui.DoEvents();
  BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, platform);
}

// The combined text is at least as long as its sources together: every line keeps its bytes and
// gains a CR LF where it ended in a lone CR or in nothing.
std::uint64_t SourcesLength(const std::vector<std::string>& sources) {
  std::uint64_t length = 0;
  for (const auto& source : sources) length += FileLength(source);
  return length;
}

// Copies the files line by line into `target`, each line ended by CR LF; "" when it was written
// whole, otherwise the refusal of a result past the dataset size limit, `target` being untouched.
std::string CopyLines(const std::vector<std::string>& sources, const std::string& target) {
  LineWriter out(target);  // a work file beside the target, moved over it when whole
  for (const auto& source : sources) {
    LineReader reader(source);
    for (std::string_view line; reader.ReadLine(line);) {
      out.WriteLine(line);
      if (!FitsSizeLimit(out.BytesWritten())) return SizeLimitRefusal(out.BytesWritten());
    }
  }
  out.Close();
  return "";
}

// Offers the conversion of each LF-only source before anything is written; false when one stays
// as it was, the user having been told that nothing was combined.
bool SourcesHaveCrLfLineEnds(const std::vector<std::string>& sources, Platform& platform) {
  for (const auto& source : sources) {
    const LineEndAnswer answer =
        OfferCrLfConversion(source, "If you answer No, the files are not combined.", platform);
    if (answer == LineEndAnswer::kFailed) return false;
    if (answer != LineEndAnswer::kDeclined) continue;
    platform.ui.MsgBox("The files were not combined, because " + source +
                           " has lines that end in a line feed (LF) alone and was not converted. The combined file "
                           "was not written." + std::string(kCrLf) + std::string(kCrLf) +
                           "Combine the files again and answer Yes to convert it.",
                       MsgButtons::Ok, MsgIcon::Exclamation, "Combine .dat Files");
    return false;
  }
  return true;
}

}  // namespace

void mnuCompDatFile(Session& session, Platform& platform) {
  if (RefusedForLfLineEnds(session.dataset.DatFile, platform.ui)) return;
  const std::string errorText = CompressDataset(session.dataset.DatFile, platform);
  ReindexBehindProgress(session, platform, "Reindexing file");
  platform.dlgProcessing.Hide();
  platform.ui.MsgBox(errorText.empty() ? "File Compressed!" : errorText);
}

void mnuFileNew(Session& session, Platform& platform) {
  FileDialogRequest request;
  request.save = true;
  request.filter = kDataFilter;
  request.title = "Create Dat File";
  request.initDir = session.dataset.DatFilePath;
  request.defaultExt = "dat";
  session.dataset.DatFile = LowerCaseDatasetPath(platform.ui.FileDialog(request));
  session.dataset.DatFilePath = FolderOf(session.dataset.DatFile);
  platform.settings.SaveSetting("Settings", "LastDatFullName", session.dataset.DatFile);
  platform.settings.SaveSetting("Settings", "LastDatDirectory", session.dataset.DatFilePath);
  platform.settings.SaveSetting("Settings", "PhotoDir", session.dataset.DatFilePath);
  SetDerivedPaths(session, platform.paths.appPath);

  if (FileExists(session.dataset.DatFile)) {
    if (platform.ui.MsgBox("File exists.  Overwrite?", MsgButtons::YesNo, MsgIcon::None, "Create Mkdata File") ==
        MsgResult::No)
      return;
    DeleteFileIfExists(session.dataset.DatFile);
    DeleteFileIfExists(session.dataset.IndexFile);
    session.dataset.markIndex.Clear();
  }
  session.shell.caption = session.dataset.DatFile;
  session.menu["mnuViewHcl"].enabled = false;
  session.menu["mnuViewVcl"].enabled = false;
  session.menu["mnuViewError"].enabled = false;
  session.menu["mnuTools"].enabled = true;
}

void mnuCombineDat(Session& session, Platform& platform) {
  FileDialogRequest request;
  request.save = true;
  request.filter = kDataFilter;
  request.title = "Create Combined Dat File";
  request.defaultExt = "dat";
  const std::string combined = platform.ui.FileDialog(request);

  auto& dialog = session.forms.Get<FrmGetFile>();
  dialog.caption = "Select .dat Files to Combine";
  if (dialog.folder.empty()) dialog.SetFolder(session.dataset.DatFilePath.empty() ? FolderOf(combined) : session.dataset.DatFilePath);
  dialog.Tag = "Canceled";
  platform.ui.ShowModal(dialog);
  platform.ui.Hide(dialog);
  if (dialog.Tag == "Canceled") return;

  // The whole combined text is written beside the chosen file, then moved over it in one step.
  const std::vector<std::string> sources = dialog.SelectedPaths();
  if (!SourcesHaveCrLfLineEnds(sources, platform)) return;
  std::string refusal = SizeLimitRefusal(SourcesLength(sources));
  if (refusal.empty()) refusal = CopyLines(sources, combined);
  if (!refusal.empty()) {
    platform.ui.MsgBox(refusal, MsgButtons::Ok, MsgIcon::Exclamation, "Combine .dat Files");
    return;
  }
  platform.ui.MsgBox("Files combined.", MsgButtons::Ok, MsgIcon::None, "Combine .dat Files");
}

void mnuDelDesc(Session& session, Platform& platform) {
  auto& list = session.forms.Get<FrmSelectPoints>();
  list.Clear();
  list.caption = "Select Points to Delete";
  for (const auto& element : session.dataset.markIndex.Elements())
    if (!IsBlank(element)) list.AddItem(SelectionItemOfRecord(element));
  list.Tag = "Canceled";
  platform.ui.ShowModal(list);
  platform.ui.Hide(list);
  if (list.Tag == "Canceled") return;
  if (RefusedForLfLineEnds(session.dataset.DatFile, platform.ui)) return;
  if (platform.ui.MsgBox(std::string("This will permanently remove these discriptions.") + kCrLf + "Continue?",
                         MsgButtons::YesNo, MsgIcon::None, "Delete Descriptions", 2) == MsgResult::No)
    return;
  if (list.lstPoints.empty()) return;
  platform.ui.SetHourglass(true);

  Progress& progress = platform.dlgProcessing;
  progress.caption = "Delete Description(s)";
  progress.min = 0;
  progress.max = static_cast<int>(list.lstPoints.size());
  progress.value = 0;
  progress.lblProcessing = "Deleting descriptions";
  progress.lblInfo = "Please wait...";
  progress.Show();
  platform.ui.DoEvents();

  std::size_t deleted = 0;
  for (std::size_t i = 0; i < list.lstPoints.size(); ++i) {
    if (!list.Selected(i)) continue;
    ++deleted;
    // The list of PIDs holds 1000 entries; the next one fails on its bound, the blanks made so
    // far staying in the dataset.
    if (deleted > kMaxDeletedPids) throw SubscriptOutOfRange();
    const std::string error =
        BlankDescription(session.dataset.markIndex, session.dataset.DatFile, FrmSelectPoints::PidOfItem(list.lstPoints[i]));
    if (!error.empty()) {
      progress.Hide();
      platform.ui.MsgBox(error);
      platform.ui.SetHourglass(false);
      return;
    }
    progress.value = static_cast<int>(i);
    progress.Refresh();
  }

  const std::string errorText = CompressDataset(session.dataset.DatFile, platform);
  ReindexBehindProgress(session, platform, "Creating Index");
  platform.ui.SetHourglass(false);
  if (!errorText.empty()) {
    platform.ui.MsgBox(errorText);
    return;
  }
  progress.Hide();
  platform.ui.MsgBox(std::to_string(deleted) + " description(s) deleted!", MsgButtons::Ok, MsgIcon::None,
                     "Delete Descriptions");
}

void mnuViewFileIndex(Session& session, Platform& platform) {
  frmView& view = ViewForm(session, platform);
  view.txtViewFile = ReadWholeFile(session.dataset.IndexFile);
  const int oldSize = view.FontSize;
  view.FontSize = 8;
  view.Tag = "ndx";
  view.strFileType = "ndx";
  view.Caption = "File Index";
  platform.ui.ShowModal(view);
  view.FontSize = oldSize;
}

}  // namespace benchlog
