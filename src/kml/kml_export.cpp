#include "kml/kml_export.hpp"

#include "common/line_writer.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "kml/kml_document.hpp"
#include "web/service_address.hpp"

namespace benchlog {

std::string KmlPathFor(const std::string& datasetPath) { return WithoutExtension(datasetPath) + ".kml"; }

void mnuViewGE(Session& session, Platform& platform) {
  const std::string path = KmlPathFor(session.dataset.DatFile);
  try {
    const std::string dataSheetUrl = ServiceUrl(platform.settings, "/cgi-bin/ds_mark.prl?PidBox=");
    LineWriter file(path);
    file.Write(KmlDocument(session.dataset.markIndex, dataSheetUrl));
    file.Close();
  } catch (const RuntimeFailure&) {
    return;
  }
  platform.shell.OpenWithSystem(path);
}

}  // namespace benchlog
