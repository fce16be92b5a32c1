// frmPlot's popup menu on the picked mark: Photo, D-Sheet, Inverse and Delete, and Help.
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/compress_dataset.hpp"
#include "dataset/description_file.hpp"
#include "dataset/line_ends.hpp"
#include "platform/platform.hpp"
#include "plot/frm_plot.hpp"
#include "plot/mark_photo.hpp"
#include "plot/plot_files.hpp"
#include "session/frm_view.hpp"
#include "session/session.hpp"

namespace benchlog {

void frmPlot::mnuPhoto() {
  if (PickedPoint <= 0 || session == nullptr || platform == nullptr) return;
  ShowMarkPhoto(*session, *platform, store.PtPid[PickedPoint], store.PtDesignation[PickedPoint]);
}

// The Descriptions of every mark on the picked mark's spot, one after the other, in the viewer.
void frmPlot::mnuDSht() {
  if (PickedPoint < 1 || session == nullptr || platform == nullptr) return;
  try {
    std::string text;
    for (const std::int16_t n : SamePlace) {
      std::string description;
      GetDescription(session->dataset.markIndex, session->dataset.DatFile, store.PtPid[n], description);
      text += description;
    }
    frmView& view = ViewForm(*session, *platform);
    view.txtViewFile = text;
    view.Tag = store.PtPid[PickedPoint];
    view.strFileType = "dat";
    platform->ui.ShowModal(view);
  } catch (const RuntimeFailure& failure) {
    platform->ui.MsgBox(failure.description);
  }
}

// Starts a measurement from the picked mark. The pick that follows at (0, 0) finds no mark and
// only gathers the marks on the picked one's spot again.
void frmPlot::mnuInverse() {
  InverseMode = true;
  crossPointer = true;
  FromPoint = PickedPoint;
  Pick(0, 0, PickedPoint);
}

void frmPlot::mnuDelete() {
  if (PickedPoint <= 0 || session == nullptr || platform == nullptr) return;
  Ui& ui = platform->ui;
  try {
    if (ui.MsgBox("Warning-this will delete this point from the .dat file.\r\nContinue?", MsgButtons::YesNo,
                  MsgIcon::None, "Delete Description") == MsgResult::No)
      return;
    if (RefusedForLfLineEnds(session->dataset.DatFile, ui)) return;
    DeleteAndReindex(store.PtPid[PickedPoint]);
  } catch (const RuntimeFailure& failure) {
    platform->ui.MsgBox(failure.description);
  }
}

// Blanks the Description, squeezes the dataset and indexes it again, then makes the plot files
// anew and lays the view out with the new numbers, keeping where the user was looking.
void frmPlot::DeleteAndReindex(const std::string& pid) {
  const float east = CenterEast, north = CenterNorth;
  const std::int16_t level = ZoomLevel;
  DatasetState& dataset = session->dataset;
  Ui& ui = platform->ui;
  if (const std::string error = BlankDescription(dataset.markIndex, dataset.DatFile, pid); !error.empty()) {
    ui.MsgBox(error);
    return;
  }
  ui.MsgBox("Description deleted!", MsgButtons::Ok, MsgIcon::None, "Delete Description");
  const std::string error = CompressDataset(dataset.DatFile, *platform);
  BuildMarkIndexBehindProgress("Creating Index", dataset.DatFile, dataset.IndexFile, dataset.markIndex, *platform);
  if (!error.empty()) {
    ui.MsgBox(error);
    ui.SetHourglass(false);
    return;
  }
  const Ellipsoid ellipsoid{session->config.ellipsoidA, session->config.ellipsoidE2, session->config.ellipsoidEp2};
  PreparePlotFiles(dataset.markIndex, ellipsoid, platform->paths.appPath, platform->paths.supportPath);
  ZoomLevel = 0;
  Plot(*session, *platform);
  CenterEast = east, CenterNorth = north, ZoomLevel = level;
  Plot(*session, *platform);
}

void frmPlot::mnuHelp() {
  if (session == nullptr || platform == nullptr) return;
  const std::string& file = session->config.helpFile;
  const bool relative = !file.empty() && !IsPathSeparator(file.front());
  platform->ui.ShowHelp(relative ? JoinPath(platform->paths.appPath, file) : file);
}

}  // namespace benchlog
