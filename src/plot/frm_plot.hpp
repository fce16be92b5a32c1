#pragma once
// frmPlot: the plot window as a model. It keeps the view (zoom level on the ladder, centre, tick
// spacing), the options of its Options menu, the plot store, and the canvas that a drawing fills
// with primitives in UTM metres. The Qt window paints the canvas and forwards the menu commands.
#include <cstdint>
#include <string>

#include "platform/dialog_model.hpp"
#include "platform/settings_store.hpp"
#include "platform/ui.hpp"
#include "platform/window_placement.hpp"
#include "plot/plot_canvas.hpp"
#include "plot/plot_store.hpp"

namespace benchlog {

struct Session;
struct Platform;

inline constexpr const char* kPlotSection = "frmPlot";

class frmPlot : public DialogModel {
 public:
  // View state, kept between drawings. A ZoomLevel of 0 asks for a fresh layout from the files.
  std::int16_t ZoomLevel = 0;
  std::int16_t BaseLevel = 0;  // the level that holds all the data
  float CenterEast = 0;
  float CenterNorth = 0;
  std::int16_t TickSeconds = 0;

  // Options menu checks ("PlotNum", "PlotPid", "PlotDes", "PlotGrid", "PlotTitle", "PlotCities").
  // Title is kept and shown but no drawing reads it.
  bool mnuPltNum = true, mnuPltPID = true, mnuPltDes = true;
  bool mnuPlotGridTks = true, mnuPltTitle = true, mnuPlotCities = false;
  std::string FontName = "Courier New";
  double FontSize = 8;

  std::string Caption;
  PlotStore store;
  PlotCanvas canvas;
  // The drawing area in pixels; the window keeps it current. Only its proportions matter.
  double clientWidth = 800, clientHeight = 600;
  WindowPlacement placement{kNormal, 0, 0, 7200, 10800};  // twips
  bool loaded = false;  // opened and not yet closed: the next opening reads the settings again

  // Where the window's own commands reach the rest of the program; set by the Plot command.
  const Session* session = nullptr;
  Platform* platform = nullptr;

  // Opening: ZoomLevel 0, the options, the font and the saved geometry from section "frmPlot".
  void Load(const SettingsStore& settings);
  // Closing in the normal state saves "Top" and "Left" (when not negative), "Height" and "Width".
  void Unload(SettingsStore& settings);

  // Draws the view afresh. With ZoomLevel 0 it reloads the plot files and fits the level to all
  // marks (and towns, when shown). A failure is shown in a message box and leaves the canvas as it
  // stands; a missing UTMCoords.dat is shown titled "Load Plot File".
  void Plot(const Session& session, Platform& platform);

  // The window's own Plot command: the full view again, reloaded from the files.
  void PlotAll();

  // The Options menu: each toggle flips its check and saves it; Point Numbers and PID's turn each
  // other off (without saving the other). None redraws.
  void TogglePointNumbers(SettingsStore& settings);
  void TogglePids(SettingsStore& settings);
  void ToggleDesignations(SettingsStore& settings);
  void ToggleGridTicks(SettingsStore& settings);
  void ToggleTitle(SettingsStore& settings);
  void ToggleCities(SettingsStore& settings);
  // The font dialog, opened with the window's font; the choice is kept and saved.
  void mnuOptFont(Ui& ui, SettingsStore& settings);

 private:
  bool FreshLayout(const std::string& appPath, Ui& ui);
  void Draw(const Session& session, Platform& platform);
  void SetCaption(double width, double height);
  void DrawTowns(int symbolSize);
};

// The session's plot window.
frmPlot& PlotForm(Session& session);

}  // namespace benchlog
