#include "view/reference_positions.hpp"

#include <string>
#include <vector>

#include "common/line_input.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/description_file.hpp"
#include "geodesy/reference_objects.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"
#include "session/index_record.hpp"

namespace benchlog {
namespace {

bool HasHorizontalOrder(const std::string& record) { return !IsBlank(IndexField(record, kHorzOrderColumn)); }

std::vector<NearbyMark> HorizontalMarks(const MarkIndex& markIndex) {
  std::vector<NearbyMark> marks;
  for (const auto& record : markIndex.Elements())
    if (HasHorizontalOrder(record))
      marks.push_back({IndexField(record, kPidColumn), IndexField(record, kDesignationColumn),
                       IndexField(record, kLatitudeColumn), IndexField(record, kLongitudeColumn),
                       IndexField(record, kStabilityCodeColumn)});
  return marks;
}

// The first selected item of the list of horizontal marks, "" when the user cancelled or chose none.
std::string PickStation(Session& session, Platform& platform) {
  auto& list = session.forms.Get<FrmSelectPoints>();
  list.Clear();
  list.caption = "Select Horizontal Mark:";
  list.cmdSelectAllVisible = false;
  list.backColor = session.shell.backColor;
  list.foreColor = session.shell.foreColor;
  for (const auto& record : session.dataset.markIndex.Elements())
    if (HasHorizontalOrder(record)) list.AddItem(SelectionItemOfRecord(record));
  list.Tag = "Canceled";
  platform.ui.ShowModal(list);
  platform.ui.Hide(list);
  if (list.Tag == "Canceled" || list.lstPoints.empty()) return "";
  for (std::size_t i = 0; i < list.lstPoints.size(); ++i)
    if (list.Selected(i)) return list.lstPoints[i];
  return "";
}

}  // namespace

void mnuCompPos(Session& session, Platform& platform) {
  try {
    const std::string item = PickStation(session, platform);
    if (item.empty()) return;
    const std::string pid = Right(item, 6);
    std::string description;
    if (!GetDescription(session.dataset.markIndex, session.dataset.DatFile, pid, description).empty()) return;
    const Ellipsoid ellipsoid{session.config.ellipsoidA, session.config.ellipsoidE2, session.config.ellipsoidEp2};
    const std::string report = ReferenceObjectReport(pid, Left(item, 30), SplitCrLf(description),
                                                     HorizontalMarks(session.dataset.markIndex), ellipsoid,
                                                     platform.ui);
    frmView& view = ViewForm(session, platform);
    view.txtViewFile = report;
    view.BackColor = session.shell.backColor;
    view.Caption = "View Positions of Reference Objects ";
    view.Tag = "";
    view.strFileType = "rpt";
    platform.ui.ShowModal(view);
  } catch (const RuntimeFailure&) {
  }
}

}  // namespace benchlog
