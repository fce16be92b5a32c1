#include "export/export_forms.hpp"

namespace benchlog {

frmOutputOptions& OutputOptionsForm(Session& session, Platform& platform) {
  frmOutputOptions& form = session.forms.Get<frmOutputOptions>();
  if (!form.Loaded) form.Load(platform.settings, platform.paths.supportPath);
  return form;
}

frmCDT& CdtForm(Session& session, Platform& platform) {
  frmCDT& form = session.forms.Get<frmCDT>();
  if (!form.Loaded) form.Load(platform.settings, platform.paths.supportPath);
  return form;
}

}  // namespace benchlog
