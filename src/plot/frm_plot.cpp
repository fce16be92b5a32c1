#include "plot/frm_plot.hpp"

#include <algorithm>

#include "common/format.hpp"
#include "common/number_text.hpp"
#include "common/plain_number.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "platform/platform.hpp"
#include "plot/lat_lon_ticks.hpp"
#include "plot/mark_symbols.hpp"
#include "plot/plot_files.hpp"
#include "plot/zoom_ladder.hpp"
#include "session/index_extent.hpp"
#include "session/session.hpp"

namespace benchlog {
namespace {

bool SettingTrue(const SettingsStore& settings, const char* key, const char* defaultValue) {
  const std::string text = UCase(Trim(settings.GetSetting(kPlotSection, key, defaultValue)));
  if (text == "TRUE") return true;
  if (text == "FALSE" || text.empty()) return false;
  return Val(text) != 0;
}

void Save(SettingsStore& settings, const char* key, bool value) {
  settings.SaveSetting(kPlotSection, key, value ? "True" : "False");
}

long SettingNumber(const SettingsStore& settings, const char* key, long defaultValue) {
  return static_cast<long>(Val(settings.GetSetting(kPlotSection, key, std::to_string(defaultValue))));
}

// The classic Str(): a leading blank for a number that is not negative.
std::string Str(double value) { return (value < 0 ? "" : " ") + PlainNumber(value); }

struct Bounds {
  double minNorth = 10000000, minEast = 10000000, maxNorth = 0, maxEast = 0;
  void Widen(double north, double east) {
    if (north == 0) return;
    minNorth = std::min(minNorth, north);
    maxNorth = std::max(maxNorth, north);
    minEast = std::min(minEast, east);
    maxEast = std::max(maxEast, east);
  }
};

}  // namespace

void frmPlot::Load(const SettingsStore& settings) {
  ZoomLevel = 0;
  FontName = settings.GetSetting(kPlotSection, "PlotFontName", "Courier New");
  FontSize = Val(settings.GetSetting(kPlotSection, "PlotFontSize", "8"));
  mnuPltNum = SettingTrue(settings, "PlotNum", "True");
  mnuPltPID = SettingTrue(settings, "PlotPid", "True");
  mnuPltDes = SettingTrue(settings, "PlotDes", "True");
  mnuPlotGridTks = SettingTrue(settings, "PlotGrid", "True");
  mnuPltTitle = SettingTrue(settings, "PlotTitle", "True");
  mnuPlotCities = SettingTrue(settings, "PlotCities", "False");
  placement.top = SettingNumber(settings, "Top", placement.top);
  placement.left = SettingNumber(settings, "Left", placement.left);
  placement.height = SettingNumber(settings, "Height", placement.height);
  placement.width = SettingNumber(settings, "Width", placement.width);
  // Until the window measures its canvas: the saved size less the frame and the menu bar.
  clientWidth = std::max(80.0, static_cast<double>(placement.width) / kTwipsPerPixel - 16);
  clientHeight = std::max(60.0, static_cast<double>(placement.height) / kTwipsPerPixel - 60);
  canvas.fontName = FontName;
  canvas.fontSize = FontSize;
  loaded = true;
}

void frmPlot::Unload(SettingsStore& settings) {
  loaded = false;
  if (placement.state != kNormal) return;
  if (placement.top >= 0) settings.SaveSetting(kPlotSection, "Top", std::to_string(placement.top));
  if (placement.left >= 0) settings.SaveSetting(kPlotSection, "Left", std::to_string(placement.left));
  settings.SaveSetting(kPlotSection, "Height", std::to_string(placement.height));
  settings.SaveSetting(kPlotSection, "Width", std::to_string(placement.width));
}

void frmPlot::Plot(const Session& session, Platform& platform) {
  try {
    Draw(session, platform);
  } catch (const RuntimeFailure& failure) {
    platform.ui.SetHourglass(false);
    platform.ui.MsgBox(failure.description);
  }
}

bool frmPlot::FreshLayout(const std::string& appPath, Ui& ui) {
  store = PlotStore{};
  const std::string error = LoadPlotFile(store, appPath);
  if (!error.empty()) {
    ui.MsgBox(error, MsgButtons::Ok, MsgIcon::None, "Load Plot File");
    return false;
  }
  canvas.Clear();
  canvas.backColor = kColorWhite;
  canvas.foreColor = kColorBlack;
  Bounds bounds;
  for (int n = store.FirstPoint; n <= store.LastPoint; ++n) bounds.Widen(store.PtNorth[n], store.PtEast[n]);
  if (mnuPlotCities)
    for (std::size_t i = 0; i < store.CityNorth.size(); ++i) bounds.Widen(store.CityNorth[i], store.CityEast[i]);
  CenterEast = static_cast<float>((bounds.minEast + bounds.maxEast) / 2);
  CenterNorth = static_cast<float>((bounds.minNorth + bounds.maxNorth) / 2);
  double width = bounds.maxEast - bounds.minEast;
  double height = bounds.maxNorth - bounds.minNorth;
  FitToClient(width, height, clientWidth, clientHeight);
  if (const auto level = LevelOfWidth(width)) BaseLevel = ZoomLevel = *level;
  return true;
}

void frmPlot::SetCaption(double width, double height) {
  if (height < 2000)
    Caption = "Viewing area: " + Str(height) + " X " + Str(width) + " Meters";
  else
    Caption = "Viewing area: " + Format(height / 1000, "###,###") + " X " + Format(width / 1000, "###,###") + " Km";
}

void frmPlot::DrawTowns(int symbolSize) {
  canvas.foreColor = kColorGreen;
  canvas.fontSize = 10;
  for (std::size_t i = 0; i < store.CityNorth.size(); ++i) {
    if (!(store.CityNorth[i] > 0)) continue;
    const double w = (static_cast<double>(store.CityName[i].size()) - 1) * symbolSize / 2;
    canvas.PSet(store.CityEast[i] - w, store.CityNorth[i] + symbolSize);
    canvas.Print(store.CityName[i]);
  }
}

void frmPlot::Draw(const Session& session, Platform& platform) {
  const bool towns = mnuPlotCities;
  if (ZoomLevel == 0 && !FreshLayout(platform.paths.appPath, platform.ui)) return;
  if (const auto seconds = TickSecondsOf(ZoomLevel)) TickSeconds = *seconds;
  double width = ViewWidth(ZoomLevel);
  double height = 0.75 * width;
  const auto left = static_cast<float>(CenterEast - width / 2);
  const auto top = static_cast<float>(CenterNorth + height / 2);
  SetCaption(width, height);
  FitToClient(width, height, clientWidth, clientHeight);
  const double right = left + width, bottom = top - height;
  canvas.SetScale(left, top, right, bottom);
  canvas.Clear();
  strayLines.clear();
  canvas.fontName = FontName;
  const SymbolSize size = SymbolSizeFor(height);
  canvas.mode = DrawMode::Copy;
  if (mnuPlotGridTks) {
    const Ellipsoid ellipsoid{session.config.ellipsoidA, session.config.ellipsoidE2, session.config.ellipsoidEp2};
    PlotLatLonTicks(canvas, ellipsoid, PlotZoneLine(IndexExtent(session.dataset.markIndex)),
                    {left, top, right, bottom, size.s, height, TickSeconds});
  }
  if (towns) DrawTowns(size.s);
  canvas.fontSize = Val(platform.settings.GetSetting(kPlotSection, "PlotFontSize", "8"));
  canvas.foreColor = kColorBlack;
  const MarkLabels labels{mnuPltNum, mnuPltPID, mnuPltDes, size.s == 6 ? 4 : width / 160, height / 50};
  std::uint32_t classColor = kColorBlack;
  for (int n = store.FirstPoint; n <= store.LastPoint; ++n)
    if (store.PtNorth[n] > 0.01 && store.PtEast[n] > 0.01) DrawMark(canvas, store, n, size, labels, classColor);
  platform.ui.SetHourglass(false);
}

void frmPlot::PlotAll() {
  if (session == nullptr || platform == nullptr) return;
  ZoomLevel = 0;
  Plot(*session, *platform);
}

void frmPlot::TogglePointNumbers(SettingsStore& settings) {
  mnuPltNum = !mnuPltNum;
  Save(settings, "PlotNum", mnuPltNum);
  if (mnuPltNum) mnuPltPID = false;
}

void frmPlot::TogglePids(SettingsStore& settings) {
  mnuPltPID = !mnuPltPID;
  Save(settings, "PlotPid", mnuPltPID);
  if (mnuPltPID) mnuPltNum = false;
}

void frmPlot::ToggleDesignations(SettingsStore& settings) {
  mnuPltDes = !mnuPltDes;
  Save(settings, "PlotDes", mnuPltDes);
}

void frmPlot::ToggleGridTicks(SettingsStore& settings) {
  mnuPlotGridTks = !mnuPlotGridTks;
  Save(settings, "PlotGrid", mnuPlotGridTks);
}

void frmPlot::ToggleTitle(SettingsStore& settings) {
  mnuPltTitle = !mnuPltTitle;
  Save(settings, "PlotTitle", mnuPltTitle);
}

void frmPlot::ToggleCities(SettingsStore& settings) {
  mnuPlotCities = !mnuPlotCities;
  Save(settings, "PlotCities", mnuPlotCities);
}

void frmPlot::mnuOptFont(Ui& ui, SettingsStore& settings) {
  FontChoice initial;
  initial.name = FontName;
  initial.size = FontSize;
  const auto choice = ui.FontDialog(initial);
  if (!choice) return;
  FontName = choice->name;
  FontSize = choice->size;
  settings.SaveSetting(kPlotSection, "PlotFontName", FontName);
  settings.SaveSetting(kPlotSection, "PlotFontSize", PlainNumber(FontSize));
}

frmPlot& PlotForm(Session& session) { return session.forms.Get<frmPlot>(); }

}  // namespace benchlog
