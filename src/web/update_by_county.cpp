#include "web/update_by_county.hpp"

#include "common/files.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "dataset/line_ends.hpp"
#include "support_files/country_file.hpp"
#include "web/dlg_type_control.hpp"
#include "web/frm_options.hpp"
#include "web/mark_list_lines.hpp"
#include "web/service_address.hpp"
#include "web/station_choice.hpp"
#include "web/web_transfers.hpp"

namespace benchlog {
namespace {

// The dataset may be written: it exists, is not read-only and has CR LF line ends. Says why not.
bool DatasetWritable(const std::string& datFile, Ui& ui) {
  if (datFile.empty() || !FileExists(datFile)) {
    ui.MsgBox("No mkdata file specified!");
    return false;
  }
  if (IsReadOnly(datFile)) {
    ui.MsgBox(".dat file is read-only", MsgButtons::Ok, MsgIcon::Critical, "Update from Internet");
    return false;
  }
  return !RefusedForLfLineEnds(datFile, ui);
}

// Shows frmOptions with `choices` under `caption`, the box's text first set to `text`; the box's
// text afterwards ("" when the user pressed Esc).
std::string PickFromOptions(Session& session, Platform& platform, const std::vector<std::string>& choices,
                            const std::string& text, const std::string& caption) {
  auto& options = session.forms.Get<frmOptions>();
  if (!options.Loaded) options.Load(platform.settings);
  options.Clear();
  for (const std::string& choice : choices) options.AddItem(choice);
  options.cboChoices = text;
  options.caption = caption;
  platform.ui.ShowModal(options);
  return options.cboChoices;
}

}  // namespace

void mnuUpdateByCounty(Session& session, Platform& platform) {
  if (!DatasetWritable(session.dataset.DatFile, platform.ui)) return;
  const std::string countryPath = platform.paths.supportPath + kCountryFileName;

  const std::string state =
      Left(PickFromOptions(session, platform, CountryStateList(countryPath), session.config.state, "Select State:"), 2);
  if (state.empty()) return;
  const std::string county =
      PickFromOptions(session, platform, CountryCountyList(countryPath, state), "", "Select County:");
  if (county.empty()) return;
  const std::string fips = session.supportFiles.Fips()->LookUp(state, county);
  if (Val(fips) == 0) {
    platform.ui.MsgBox("Invalid Fips Code!");
    return;
  }

  auto& types = session.forms.Get<dlgTypeControl>();
  platform.ui.ShowModal(types);
  if (types.Tag == "Canceled") return;
  std::string answer, ErrMsg;
  GetUrlOnce(platform,
             ServiceUrl(platform.settings,
                        "/cgi-bin/get_mark_list.prl?1=COUNTY&2=" + state + "&3=" + fips + "&4=" + types.Tag),
             answer, ErrMsg);
  if (!ErrMsg.empty()) {
    platform.ui.MsgBox(ErrMsg);
    platform.ui.SetHourglass(false);
    return;
  }
  ChooseStationsAndReplace(session, platform, ChoiceEntries(answer, IsCountyRecord), UpdateCommand::County);
}

}  // namespace benchlog
