#pragma once
// A plot window over the files `coords` and `cities` in a fresh program folder, with an 800 x 600
// client, ticks and PIDs off; and GRS 80 for the sessions that need an ellipsoid.
#include <string>

#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "geodesy/ellipsoid.hpp"
#include "plot/frm_plot.hpp"

namespace benchlog::testing {

inline const Ellipsoid kGrs80{6378137, 0.00669438002290, 0.00669438002290 / (1 - 0.00669438002290)};

inline void UseGrs80(TestSession& session) {
  session.config.ellipsoidA = kGrs80.a;
  session.config.ellipsoidE2 = kGrs80.e2;
  session.config.ellipsoidEp2 = kGrs80.ep2;
}

struct PlotFixture {
  explicit PlotFixture(const std::string& coords, const std::string& cities = "") : fake(folder.Path()) {
    folder.Write("UTMCoords.dat", coords);
    folder.Write("UTMCities.dat", cities);
    form.Load(fake.settings);
    form.clientWidth = 800, form.clientHeight = 600;
    form.mnuPlotGridTks = false;
    form.mnuPltPID = false;
    form.session = &session;
    form.platform = &fake.platform;
  }
  void Plot(int level = 0) {
    form.ZoomLevel = static_cast<std::int16_t>(level);
    form.Plot(session, fake.platform);
  }
  TempFolder folder;
  FakePlatform fake;
  TestSession session;
  frmPlot form;
};

}  // namespace benchlog::testing
