#pragma once
// frmPlot: the plot window as a model. It keeps the view (zoom level on the ladder, centre, tick
// spacing), the options of its Options menu, the plot store, and the canvas that a drawing fills
// with primitives in UTM metres. The Qt window paints the canvas and forwards the menu commands.
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

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

enum class MouseButton { Left, Right };

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

  // Interaction state. Positions are UTM metres; point numbers count from 1, so 0 means none.
  bool BandActive = false;  // a left press is under way and its rubber band is shown
  float BandX1 = 0, BandX2 = 0, BandY1 = 0, BandY2 = 0;
  bool InverseMode = false;  // a measurement is running
  std::int16_t FromPoint = 0, ToPoint = 0;
  float LineX = 0, LineY = 0;  // the loose end of the rubber line; 0 for none
  std::int16_t PickedPoint = 0;
  std::vector<std::int16_t> SamePlace;  // the marks exactly where the picked one lies, itself included
  bool crossPointer = false;            // the mouse pointer is the cross of a measurement
  // Rubber lines that a right click left behind; they go at the next drawing.
  std::vector<PlotPrimitive> strayLines;

  // What the window does at once while an operation runs: show the overlays again (a message box
  // is about to stand over them), sound the beep.
  std::function<void()> onOverlayChanged;
  std::function<void()> onBeep;

  // Where the window's own commands reach the rest of the program; set by the Plot command.
  Session* session = nullptr;
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

  // The mouse, at (x, y) in metres. A move shows the position and the zoom level in the caption
  // and drags the rubber band or the rubber line. A left press starts a band, or picks the second
  // mark of a measurement and shows the distance. A left release zooms to the band, or centres
  // the view on a click. A right press ends a measurement and picks the mark for the popup menu,
  // which the window then opens.
  void MouseMove(float x, float y);
  void MouseDown(MouseButton button, float x, float y);
  void MouseUp(MouseButton button, float x, float y);
  // What the window paints over the plot: the band, the rubber line, the line being measured and
  // stray lines, all in invert mode. They never become part of the canvas.
  std::vector<PlotPrimitive> Overlay() const;

  // One step on the ladder, about the same centre; never out past the level that holds all marks.
  void mnuZoomIn();
  void mnuZoomOut();
  // Asks for a point number, PID or designation and centres the view on that mark at level 8.
  void mnuFind();
  // The popup menu of the picked mark: its photo, the Descriptions of all marks on its spot in the
  // viewer, a measurement from it, and its deletion from the dataset.
  void mnuPhoto();
  void mnuDSht();
  void mnuInverse();
  void mnuDelete();
  // The program's help.
  void mnuHelp();

 private:
  bool FreshLayout(const std::string& appPath, Ui& ui);
  void Draw(const Session& session, Platform& platform);
  void SetCaption(double width, double height);
  void DrawTowns(int symbolSize);
  void Pick(float x, float y, std::int16_t& point);
  void ZoomToBand();
  void Measure(float x, float y);
  void Redraw();
  void Changed() const;
  void DeleteAndReindex(const std::string& pid);

  bool measuring_ = false;  // the two marks of a measurement are joined while its distance shows
};

// The text of a measured distance in metres: metres and feet below 500 m, else km and miles.
std::string MeasureText(double distance);

// The session's plot window.
frmPlot& PlotForm(Session& session);

}  // namespace benchlog
