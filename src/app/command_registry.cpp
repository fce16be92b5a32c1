#include "app/command_registry.hpp"

#include <stdexcept>
#include <utility>

#include "app/app_commands.hpp"
#include "app/menu_tree.hpp"
#include "app/recent_files.hpp"
#include "dataset/dataset_commands.hpp"
#include "dataset/dataset_file_commands.hpp"
#include "export/export_commands.hpp"
#include "handheld/handheld_commands.hpp"
#include "kml/kml_export.hpp"
#include "view/character_check.hpp"
#include "plot/map_image.hpp"
#include "plot/plot_commands.hpp"
#include "view/class_filter.hpp"
#include "view/frm_edit.hpp"
#include "view/reference_positions.hpp"
#include "view/report_commands.hpp"
#include "view/view_by_class.hpp"
#include "view/viewer_print.hpp"
#include "web/service_address_form.hpp"
#include "web/update_by_county.hpp"
#include "web/update_by_pid.hpp"
#include "web/update_by_project.hpp"
#include "web/town_update.hpp"
#include "web/update_by_radius.hpp"

namespace benchlog {
namespace {

void RegisterAppCommands(CommandTable& table) {
  table.Register("mnuOpenDat", mnuOpenDat);
  table.Register("mnuOpenCounty", mnuOpenCounty);
  for (int n = 1; n <= kMaxRecentFiles; ++n)
    table.Register(MruItemName(n), [n](Session& s, Platform& p) { mnuFileMRUItem_Click(s, p, n); });
  table.Register("mnuSetBackColor", mnuSetBackColor);
  table.Register("mnuSetForColor", mnuSetForColor);
  table.Register("mnuServiceAddress", mnuServiceAddress);
  table.Register("mnuBenchlogHlp", mnuBenchlogHlp);
  table.Register("mnuHelpAbout", mnuHelpAbout);
  table.Register("mnuExit", mnuExit);
}

void RegisterDatasetCommands(CommandTable& table) {
  table.Register("mnuReindex", mnuReindex);
  table.Register("mnuCompDatFile", mnuCompDatFile);
  table.Register("mnuFileNew", mnuFileNew);
  table.Register("mnuCombineDat", mnuCombineDat);
  table.Register("mnuDelDesc", mnuDelDesc);
  table.Register("mnuViewFileIndex", mnuViewFileIndex);
}

void RegisterViewCommands(CommandTable& table) {
  const std::pair<const char*, int> classes[] = {
      {"mnuAllHorizontal", kAllHorizontal}, {"mnuHorizFirst", kHorizontalFirstAndBetter},
      {"mnuAllVert", kAllVertical},         {"mnuVertFirst", kVerticalFirstOnly},
      {"mnuBdyMons", kBoundaryMonuments},   {"mnuLandMarks", kLandmarks},
      {"mnuViewCors", kCors},               {"mnuViewFBN", kBaseNetwork},
      {"mnuViewPacs", kAirport},            {"mnuViewTidal", kTidal},
      {"mnuViewGPS", kGpsSuitable},         {"mnuViewHtMod", kHeightMod},
      {"mnuViewBMsNotPos", kRecoveredNotPositioned}, {"mnuViewRecNotPhoto", kRecoveredNotPhotographed},
  };
  for (const auto& [name, code] : classes)
    table.Register(name, [code = code](Session& s, Platform& p) { ViewDescriptionsByClass(s, p, code); });
  table.Register("mnuLocByPid", mnuLocByPid);
  table.Register("mnuCompPos", mnuCompPos);
}

void RegisterExportCommands(CommandTable& table) {
  table.Register("mnuExport", mnuExport);
  table.Register("mnuViewHcl", mnuViewHcl);
  table.Register("mnuViewVcl", mnuViewVcl);
  table.Register("mnuViewGE", mnuViewGE);
}

void RegisterPlotCommands(CommandTable& table) { table.Register("mnuPlot", mnuPlot); }

void RegisterWebCommands(CommandTable& table) {
  table.Register("mnuUpdateByCounty", mnuUpdateByCounty);
  table.Register("mnuUpdtLatLonRad", mnuUpdtLatLonRad);
  table.Register("mnuUpdtbyProj", mnuUpdtbyProj);
  table.Register("mnuUpdateByPID", [](Session& s, Platform& p) { mnuUpdateByPID(s, p); });
  table.Register("mnuCORSbyST", mnuCORSbyST);
  table.Register("mnuGetTownOCO", mnuGetTownOCO);
}

void RegisterEditorCommands(CommandTable& table) {
  table.Register("mnuEditSA", mnuEditSA);
  table.Register("mnuViewSAFile", mnuEditSA);
  table.Register("mnuFindProbChar", mnuFindProbChar);
}

void RegisterHandheldCommands(CommandTable& table) {
  table.Register("mnuConvDelimtoHH", mnuConvDelimtoHH);
  table.Register("mnuConvgpxToHH", mnuConvgpxToHH);
  table.Register("mnuConvertGarminToHH", mnuConvertGarminToHH);
  table.Register("mnuLatLoninTxt", mnuLatLoninTxt);
  table.Register("mnuHHDiscrep", mnuHHDiscrep);
}

void RegisterReportCommands(CommandTable& table) {
  table.Register("mnuViewPhotoList", mnuViewPhotoList);
  table.Register("mnuViewSketchList", mnuViewSketchList);
  table.Register("mnuPostedHts", mnuPostedHts);
  table.Register("mnuBmNotGPSed", mnuBmNotGPSed);
  table.Register("mnuRecNotPhoto", mnuRecNotPhoto);
  table.Register("mnuNotSearched", mnuNotSearched);
  table.Register("mnuPrintNRList", mnuPrintNRList);
  table.Register("mnuViewError", mnuViewError);
  table.Register("mnuViewPhoto", mnuViewPhoto);
  table.Register("mnuViewSketch", mnuViewSketch);
  table.Register("mnuViewText", mnuViewText);
  table.Register("mnuOpenMap", mnuOpenMap);
  SetViewerPrint(PrintViewerText);
}

bool InMenuTree(const std::string& name) {
  for (const auto& entry : MainMenuTree())
    if (entry.name == name) return true;
  return false;
}

}  // namespace

CommandTable BuildCommandTable() {
  CommandTable table;
  RegisterAppCommands(table);
  RegisterDatasetCommands(table);
  RegisterViewCommands(table);
  RegisterExportCommands(table);
  RegisterWebCommands(table);
  RegisterEditorCommands(table);
  RegisterHandheldCommands(table);
  RegisterReportCommands(table);
  RegisterPlotCommands(table);
  for (const auto& name : table.Names())
    if (!InMenuTree(name)) throw std::logic_error("A command is registered as \"" + name + "\", which the menu lacks.");
  for (const auto& entry : MainMenuTree())
    if (entry.kind == MenuKind::Command && !table.Has(entry.name))
      throw std::logic_error("The menu entry \"" + entry.name + "\" has no command.");
  return table;
}

}  // namespace benchlog
