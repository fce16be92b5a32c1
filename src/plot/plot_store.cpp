#include "plot/plot_store.hpp"

#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/number_text.hpp"
#include "common/rounding.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "plot/plot_files.hpp"

namespace benchlog {
namespace {

void ReadMark(PlotStore& store, std::string_view line, int n) {
  if (n < 0 || n >= kPlotCapacity) throw SubscriptOutOfRange();
  const auto number = static_cast<std::int16_t>(n);
  if (number < store.FirstPoint) store.FirstPoint = number;
  if (number > store.LastPoint) store.LastPoint = number;
  store.PtNorth[n] = Val(Mid(line, 6, 8));
  store.PtEast[n] = Val(Mid(line, 15, 8));
  store.PtDesignation[n] = Trim(Mid(line, 24, 30));
  store.PtHorz[n] = Trim(Mid(line, 55, 1));
  store.PtVert[n] = Trim(Mid(line, 57, 1));
  store.PtLandmark[n] = Mid(line, 59, 1) == "L";
  store.PtPid[n] = Trim(Mid(line, 61, 6));
}

void ReadCity(PlotStore& store, std::string_view line, int n) {
  const auto size = static_cast<std::size_t>(n) + 1;
  store.CityNorth.resize(size);
  store.CityEast.resize(size);
  store.CityName.resize(size);
  store.CityNorth[n] = Val(Mid(line, 6, 8));
  store.CityEast[n] = Val(Mid(line, 15, 8));
  store.CityName[n] = Trim(Mid(line, 24));
}

}  // namespace

std::string LoadPlotFile(PlotStore& store, const std::string& appPath) {
  store.FirstPoint = 10000;
  store.LastPoint = 0;
  const std::string coordsPath = appPath + "/" + kPlotCoordsFileName;
  if (!FileExists(coordsPath)) return "File not found!";
  int n = 0;
  std::string_view line;
  {
    LineReader coords(coordsPath);
    while (coords.ReadLine(line)) {
      n = CLng(Val(Mid(line, 1, 4)));
      ReadMark(store, line, n);
    }
  }
  LineReader cities(appPath + "/" + kPlotCitiesFileName);
  while (cities.ReadLine(line)) ReadCity(store, line, ++n);
  return "";
}

}  // namespace benchlog
