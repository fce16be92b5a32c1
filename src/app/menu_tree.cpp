#include "app/menu_tree.hpp"

namespace benchlog {
namespace {

MenuEntry Top(const char* name, const char* caption) { return {name, caption, "", MenuKind::TopLevel, true}; }
MenuEntry Sub(const char* name, const char* caption, const char* parent) {
  return {name, caption, parent, MenuKind::Submenu, true};
}
MenuEntry Cmd(const char* name, const char* caption, const char* parent) {
  return {name, caption, parent, MenuKind::Command, true};
}
MenuEntry Sep(const char* name, const char* parent) { return {name, "", parent, MenuKind::Separator, true}; }

std::vector<MenuEntry> MakeTree() {
  std::vector<MenuEntry> tree = {
      Top("mnuFile", "&File"),
      Cmd("mnuFileNew", "&New", "mnuFile"),
      Sub("mnuOpen", "&Open", "mnuFile"),
      Cmd("mnuOpenCounty", "&County File", "mnuOpen"),
      Cmd("mnuOpenDat", "&Dat File", "mnuOpen"),
      Cmd("mnuOpenMap", "&Map", "mnuOpen"),
      {"mnuFileMRUSep", "", "mnuFile", MenuKind::Separator, false},
  };
  for (int n = 1; n <= 8; ++n) tree.push_back({MruItemName(n), "", "mnuFile", MenuKind::Command, false});
  const std::vector<MenuEntry> rest = {
      Sep("mnuSep1", "mnuFile"),
      Cmd("mnuExport", "&Export", "mnuFile"),
      Sep("mnuSep2", "mnuFile"),
      Sub("mnuUpdate", "&Update From OCO Website", "mnuFile"),
      Cmd("mnuUpdateByCounty", "By &County", "mnuUpdate"),
      Cmd("mnuUpdtLatLonRad", "By Lat, Lon, Radius", "mnuUpdate"),
      Cmd("mnuUpdtbyProj", "By &Project", "mnuUpdate"),
      Cmd("mnuUpdateByPID", "By PID", "mnuUpdate"),
      Sep("mnuSep18", "mnuUpdate"),
      Cmd("mnuCORSbyST", "CORS by State", "mnuUpdate"),
      Sep("mnusep3", "mnuFile"),
      Cmd("mnuPlot", "Plot", "mnuFile"),
      Cmd("mnuReindex", "&Reindex", "mnuFile"),
      Sep("mnuSep4", "mnuFile"),
      Cmd("mnuExit", "E&xit", "mnuFile"),
      Top("mnuEdit", "&Edit"),
      Cmd("mnuDelDesc", "&Delete Descriptions", "mnuEdit"),
      Sep("mnuSep5", "mnuEdit"),
      Cmd("mnuEditSA", "Street Atlas File", "mnuEdit"),
      Top("mnuView", "&View / Print"),
      Sub("mnuViewList", "&Listings", "mnuView"),
      Cmd("mnuViewHcl", "&Horizontal", "mnuViewList"),
      Cmd("mnuViewVcl", "&Vertical", "mnuViewList"),
      Sep("mnuSep6", "mnuViewList"),
      Cmd("mnuViewPhotoList", "Photo List", "mnuViewList"),
      Cmd("mnuViewSketchList", "Sketch List", "mnuViewList"),
      Cmd("mnuNotSearched", "Not Searched For List", "mnuViewList"),
      Cmd("mnuPrintNRList", "Not Recovered List", "mnuViewList"),
      Cmd("mnuBmNotGPSed", "Rec BM Not Positioned List", "mnuViewList"),
      Cmd("mnuRecNotPhoto", "Rec Not Photoed List", "mnuViewList"),
      Sep("mnusep7", "mnuViewList"),
      Cmd("mnuPostedHts", "BMs with Posted Hts", "mnuViewList"),
      Sub("mnuViewDesc", "&Descriptions", "mnuView"),
      Sub("mnuViewHDesc", "Horizontal", "mnuViewDesc"),
      Cmd("mnuAllHorizontal", "All Horizontal", "mnuViewHDesc"),
      Cmd("mnuHorizFirst", "First Order and Better", "mnuViewHDesc"),
      Sub("mnuViewVDesc", "Vertical", "mnuViewDesc"),
      Cmd("mnuAllVert", "All Vertical", "mnuViewVDesc"),
      Cmd("mnuVertFirst", "First Order Only", "mnuViewVDesc"),
      Sep("mnusep8", "mnuViewDesc"),
      Cmd("mnuBdyMons", "Boundary Monuments", "mnuViewDesc"),
      Cmd("mnuLandMarks", "Landmarks", "mnuViewDesc"),
      Sep("mnusep9", "mnuViewDesc"),
      Cmd("mnuViewCors", "CORS", "mnuViewDesc"),
      Cmd("mnuViewFBN", "FBN/CBN", "mnuViewDesc"),
      Cmd("mnuViewPacs", "PACS/SACS", "mnuViewDesc"),
      Cmd("mnuViewTidal", "Tidal", "mnuViewDesc"),
      Cmd("mnuViewGPS", "GPS Suitable", "mnuViewDesc"),
      Cmd("mnuViewHtMod", "Ht Mod", "mnuViewDesc"),
      Sep("mnuSep10", "mnuViewDesc"),
      Cmd("mnuLocByPid", "By PID", "mnuViewDesc"),
      Sep("sep11", "mnuViewDesc"),
      Cmd("mnuViewBMsNotPos", "Rec BMs Not Pos", "mnuViewDesc"),
      Cmd("mnuViewRecNotPhoto", "Rec Mks Not Photoed", "mnuViewDesc"),
      Sep("mnusep12", "mnuView"),
      Cmd("mnuViewPhoto", "&Photo", "mnuView"),
      Cmd("mnuViewSketch", "&Sketch", "mnuView"),
      Sep("mnusep13", "mnuView"),
      Cmd("mnuViewSAFile", "Street Atlas File", "mnuView"),
      Sep("mnusep14", "mnuView"),
      Cmd("mnuViewText", "Text File", "mnuView"),
      Cmd("mnuViewError", "&Error File", "mnuView"),
      Cmd("mnuViewFileIndex", "File Index", "mnuView"),
      Cmd("mnuViewGE", "Google Earth", "mnuView"),
      Top("mnuTools", "&Tools"),
      Cmd("mnuCompPos", "Compute Pos of Ref Obj", "mnuTools"),
      Sep("mnuSep16", "mnuTools"),
      Cmd("mnuConvgpxToHH", "Convert .gpx File to HH", "mnuTools"),
      Cmd("mnuConvDelimtoHH", "Convert Delimited Text File to HH", "mnuTools"),
      Cmd("mnuConvertGarminToHH", "Convert Garmin to HH", "mnuTools"),
      Cmd("mnuHHDiscrep", "HH Discrepancies via www", "mnuTools"),
      Sep("mnuSep17", "mnuTools"),
      Cmd("mnuCombineDat", "Combine Multiple .dat Files", "mnuTools"),
      Cmd("mnuCompDatFile", "Compress .dat File", "mnuTools"),
      Cmd("mnuLatLoninTxt", "Find Goegraphic Pos in Text", "mnuTools"),
      Cmd("mnuFindProbChar", "&Find Problem Characters in a Text File", "mnuTools"),
      Cmd("mnuGetTownOCO", "Get Towns via www", "mnuTools"),
      Sub("mnuToolsOptions", "&Options", "mnuTools"),
      Cmd("mnuSetForColor", "Set &Print Color", "mnuToolsOptions"),
      Cmd("mnuSetBackColor", "Set &Background Color", "mnuToolsOptions"),
      Cmd("mnuServiceAddress", "Web Service &Address...", "mnuToolsOptions"),
      Top("mnuHelp", "&Help"),
      Cmd("mnuBenchlogHlp", "&Benchlog Help", "mnuHelp"),
      Sep("mnusep15", "mnuHelp"),
      Cmd("mnuHelpAbout", "&About", "mnuHelp"),
  };
  tree.insert(tree.end(), rest.begin(), rest.end());
  return tree;
}

}  // namespace

const std::vector<MenuEntry>& MainMenuTree() {
  static const std::vector<MenuEntry> tree = MakeTree();
  return tree;
}

std::string MruItemName(int n) { return "mnuFileMRUItem(" + std::to_string(n) + ")"; }

void InitMenuState(MenuState& menu) {
  for (const auto& entry : MainMenuTree())
    menu.Declare(entry.name, MenuItemState{entry.caption, entry.initiallyVisible, true, false});
}

}  // namespace benchlog
