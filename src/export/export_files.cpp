#include "export/export_files.hpp"

#include <memory>
#include <stdexcept>
#include <vector>

#include "common/format.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/picture_folder.hpp"
#include "export/export_forms.hpp"
#include "export/database_output.hpp"
#include "export/export_names.hpp"
#include "export/export_output.hpp"
#include "dataset/find_descriptions.hpp"
#include "export/listing_outputs.hpp"
#include "export/mark_values.hpp"
#include "export/microstation_script.hpp"
#include "export/parsed_marks.hpp"
#include "export/street_atlas_file.hpp"
#include "geodesy/zone_line.hpp"
#include "support_files/zone_table_file.hpp"

namespace benchlog {
namespace {

using Outputs = std::vector<std::unique_ptr<ExportOutput>>;

// The progress bar is repainted about 200 times over a run, however many marks there are.
constexpr std::size_t kProgressSteps = 200;

// What the options fix for the whole export: the ellipsoid, the zone, the units, UTM, the pictures'
// folder.
ExportSetup SetupOf(const Session& session, const Platform& platform, const frmOutputOptions& options,
                    const frmCDT& cdt) {
  ExportSetup setup;
  setup.ellipsoid = {session.config.ellipsoidA, session.config.ellipsoidE2, session.config.ellipsoidEp2};
  FindZoneLine(Left(options.cboProjZone, 5), "", setup.zoneLine, platform.paths.supportPath);
  setup.utmZoneText = cdt.cboUTMZone;
  setup.utmAsked = cdt.chkUTM == 1 || options.optUTM;
  setup.coordinateFactor = options.optFeet ? GridFeetPerMetre(ZoneFootUnit(setup.zoneLine)) : 1;
  // Elevations in feet are made by the vertical listing itself: the export's own elevation factor
  // stays 1 whatever the buttons say, and the listing multiplies by it all the same.
  setup.elevationFactor = 1;
  setup.datasetFolder = session.dataset.DatFilePath;
  return setup;
}

// Opens the ticked outputs in their order: horizontal listing, vertical listing, database, Street
// Atlas file, script. False, with `ErrMsg` set, at a read-only file.
bool OpenOutputs(Session& session, Platform& platform, const frmOutputOptions& options, const frmCDT& cdt,
                 const ExportNames& names, const ExportSetup& setup, Outputs& outputs, std::string& ErrMsg) {
  if (options.chkHoriz == 1) {
    if (!PrepareOutputPath(names.hcl, ErrMsg)) return false;
    outputs.push_back(std::make_unique<HorizontalListing>(names.hcl, options.optFeet));
    session.menu["mnuViewHcl"].enabled = true;
  }
  if (options.chkVert == 1) {
    if (!PrepareOutputPath(names.vcl, ErrMsg)) return false;
    outputs.push_back(std::make_unique<VerticalListing>(names.vcl, options.optFeet, options.optElFeet,
                                                        setup.coordinateFactor, setup.elevationFactor));
    session.menu["mnuViewVcl"].enabled = true;
  }
  if (options.chkDB == 1) {
    if (!PrepareOutputPath(names.gpkg, ErrMsg)) return false;
    if (!platform.database) throw std::logic_error("ExportFiles: no database engine");
    outputs.push_back(std::make_unique<DatabaseOutput>(*platform.database, names.gpkg, cdt, setup.ellipsoid));
  }
  if (options.chkStreetAtlas == 1) {
    if (!PrepareOutputPath(names.sa6, ErrMsg)) return false;
    outputs.push_back(std::make_unique<StreetAtlasFile>(names.sa6, options.chkNRMarks == 1));
  }
  if (options.chkMicrostation == 1) {
    if (!PrepareOutputPath(names.msf, ErrMsg)) return false;
    outputs.push_back(std::make_unique<MicrostationScript>(names.msf, options.cboScale));
  }
  return true;
}

void ShowProgress(Progress& progress) {
  progress.caption = "Benchlog";
  progress.lblProcessing = "Processing ";
  progress.lblInfo = "Please wait...";
  progress.barVisible = true;
  progress.Show();
}

void RunExport(Session& session, Platform& platform, TextBlocks& strMkData, const std::string& OutFileName,
               std::string& ErrMsg) {
  session.supportFiles.Refresh(platform.paths.supportPath, platform.clock.Now());
  const frmOutputOptions& options = OutputOptionsForm(session, platform);
  const frmCDT& cdt = CdtForm(session, platform);

  const ExportNames names = ExportNamesOf(OutFileName);
  session.outputs.HclFile = names.hcl;
  session.outputs.VclFile = names.vcl;
  session.outputs.SA6File = names.sa6;
  session.outputs.ErrFile = names.err;
  session.outputs.strDBName = names.gpkg;
  session.outputs.OutFilePath = FolderOf(OutFileName);
  const ExportSetup setup = SetupOf(session, platform, options, cdt);

  Progress& progress = platform.dlgProcessing;
  ShowProgress(progress);
  Outputs outputs;
  if (!OpenOutputs(session, platform, options, cdt, names, setup, outputs, ErrMsg)) {
    outputs.clear();  // closes what was opened
    progress.Hide();
    return;
  }

  // The Descriptions are counted first, for the progress bar, then read again one by one.
  const std::size_t count = CountDescriptions(strMkData);
  strMkData.Rewind();
  progress.min = 0;
  progress.max = static_cast<int>(count);
  const std::size_t refreshEvery = count / kProgressSteps + 1;

  const PictureFolder pictures(setup.datasetFolder);
  MarkValues values;
  const bool plotLabels = options.chkMicrostation == 1;
  LambertZoneConstants lambert;  // built at the first mark, kept for the others
  ParsedMarks marks(strMkData, session.supportFiles);
  for (std::size_t i = 1; i <= count; ++i) {
    progress.value = static_cast<int>(i);
    if (i % refreshEvery == 0 || i == count) progress.Refresh();
    ParsedMark* mark = marks.Next();
    if (!mark) break;  // the text changed since it was counted
    MarkRecord& record = mark->record;
    const std::string_view pid = mark->pid;
    record.Serial = Format(static_cast<double>(i), "0000");
    values.horizontal = HasHorizontalControl(record);
    values.vertical = HasVerticalControl(record);
    ComputePlaneValues(setup, lambert, record, values);
    if (plotLabels) values.PlotLabel = PlotLabel(record, values, options.chkNRMarks == 1, options.chkLandmarks == 1);
    ComputeUtmValues(setup, record, values);
    ComputePictureFlags(pictures, record, values);
    for (auto& output : outputs) output->WriteMark(record, pid, values);
  }

  for (auto& output : outputs) output->Finish();
  outputs.clear();
  progress.Hide();
  platform.ui.MsgBox("Processing complete!", MsgButtons::Ok, MsgIcon::None, "Create File(s)");
}

}  // namespace

void ExportFiles(Session& session, Platform& platform, TextBlocks& strMkData, const std::string& OutFileName,
                 std::string& ErrMsg) {
  ErrMsg.clear();
  try {
    RunExport(session, platform, strMkData, OutFileName, ErrMsg);
  } catch (const WriteFailure& failure) {
    // An output that could not be written keeps its old file; the command shows why.
    platform.dlgProcessing.Hide();
    ErrMsg = failure.description;
  } catch (const RuntimeFailure&) {
    // Any other run-time failure ends the export without a report; the old outputs stay.
  }
}

}  // namespace benchlog
