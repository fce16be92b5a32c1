#include "web/update_by_county.hpp"

#include "common/files.hpp"
#include "common/number_text.hpp"
#include "common/text.hpp"
#include "support_files/country_file.hpp"
#include "web/dlg_type_control.hpp"
#include "web/frm_options.hpp"
#include "web/mark_list_lines.hpp"
#include "web/replacement_sequence.hpp"
#include "web/service_address.hpp"
#include "web/state_choice.hpp"
#include "web/station_choice.hpp"
#include "web/web_transfers.hpp"

namespace benchlog {
namespace {

// The dataset may be written: it exists, and the county update's own refusals (read-only, LF line
// ends) do not apply. Says why not.
bool DatasetWritable(const std::string& datFile, Ui& ui) {
  if (datFile.empty() || !FileExists(datFile)) {
    ui.MsgBox("No mkdata file specified!");
    return false;
  }
  return !RefusedForReplacement(ReplaceCommand::kCounty, datFile, ui);
}

}  // namespace

void mnuUpdateByCounty(Session& session, Platform& platform) {
  if (!DatasetWritable(session.dataset.DatFile, platform.ui)) return;
  const std::string countryPath = platform.paths.supportPath + kCountryFileName;

  const std::string state =
      Left(ChooseState(session, platform).cboChoices, 2);
  if (state.empty()) return;
  const std::string county =
      ShowOptions(session, platform, CountryCountyList(countryPath, state), "", "Select County:").cboChoices;
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
