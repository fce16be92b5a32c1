#include "plot/plot_commands.hpp"

#include "plot/frm_plot.hpp"
#include "plot/plot_files.hpp"

namespace benchlog {

void mnuPlot(Session& session, Platform& platform) {
  platform.ui.SetHourglass(true);
  const Ellipsoid ellipsoid{session.config.ellipsoidA, session.config.ellipsoidE2, session.config.ellipsoidEp2};
  const std::string error =
      PreparePlotFiles(session.dataset.markIndex, ellipsoid, platform.paths.appPath, platform.paths.supportPath);
  if (!error.empty()) {
    platform.ui.MsgBox(error, MsgButtons::Ok, MsgIcon::Critical, "Plot Points");
  } else {
    frmPlot& form = PlotForm(session);
    if (!form.loaded) form.Load(platform.settings);
    form.session = &session;
    form.platform = &platform;
    form.Plot(session, platform);
    platform.ui.ShowModeless(form);
  }
  platform.ui.SetHourglass(false);
}

}  // namespace benchlog
