#include "web/update_by_radius.hpp"

#include "common/number_text.hpp"
#include "common/text.hpp"
#include "web/dlg_lat_lon_rad.hpp"
#include "web/dlg_type_control.hpp"
#include "web/mark_list_lines.hpp"
#include "web/position_text.hpp"
#include "web/replacement_sequence.hpp"
#include "web/service_address.hpp"
#include "web/station_choice.hpp"
#include "web/web_transfers.hpp"

namespace benchlog {
namespace {

constexpr double kMaxLatitude = 90;
constexpr double kMaxLongitude = 360;  // both hemispheres
constexpr double kMaxRadiusMiles = 20;

// The first failing check's message, "" when the point and radius pass. A radius that is empty or 0
// passes.
std::string PointRefusal(const dlgLatLonRad& point) {
  if (!ValidPositionText(Mid(point.Text1[0], 2), kMaxLatitude)) return "Invalid latitude!";
  if (!ValidPositionText(Mid(point.Text1[1], 2), kMaxLongitude)) return "Invalid longitude!";
  if (Val(point.Text1[2]) > kMaxRadiusMiles) return "Invalid Radius!";
  return "";
}

}  // namespace

void mnuUpdtLatLonRad(Session& session, Platform& platform) {
  if (RefusedForReplacement(ReplaceCommand::kRadius, session.dataset.DatFile, platform.ui)) return;
  auto& point = session.forms.Get<dlgLatLonRad>();
  if (!point.Loaded) point.Load(session.config);
  platform.ui.ShowModal(point);
  if (point.Tag == "Canceled") return;
  if (const std::string refusal = PointRefusal(point); !refusal.empty()) {
    platform.ui.MsgBox(refusal, MsgButtons::Ok, MsgIcon::Critical, "Import by Lat, Lon, Radius");
    return;
  }

  auto& types = session.forms.Get<dlgTypeControl>();
  platform.ui.ShowModal(types);
  if (types.Tag == "Canceled") return;
  platform.ui.SetHourglass(true);
  std::string answer, ErrMsg;
  GetUrlRetry(platform,
              ServiceUrl(platform.settings, "/cgi-bin/get_mark_list.prl?1=RADIUS&2=" + point.Text1[0] + "&3=" +
                                                point.Text1[1] + "&4=" + point.Text1[2] + "&5=" + types.Tag),
              answer, ErrMsg);
  if (!ErrMsg.empty()) {
    platform.ui.MsgBox(ErrMsg);
    platform.ui.SetHourglass(false);
    return;
  }
  if (answer.find('\r') != std::string::npos) platform.ui.MsgBox("");
  ChooseStationsAndReplace(session, platform, ChoiceEntries(answer, IsRadiusRecord), UpdateCommand::Radius);
}

}  // namespace benchlog
