// The commands that convert receivers' waypoint files into HH files.
#include "common/line_input.hpp"
#include "common/line_writer.hpp"
#include "common/runtime_failure.hpp"
#include "handheld/handheld_commands.hpp"
#include "handheld/hh_command_start.hpp"
#include "handheld/hh_record.hpp"
#include "handheld/waypoint_lines.hpp"

namespace benchlog {
namespace {

struct WaypointCommand {
  const char* openTitle;
  const char* filter;
  const char* defaultExt;
  const char* overwriteTitle;
  const char* agencyTitle;
  const char* agencyFallback;
};

// The shared start: the input, the overwrite question and the agency. False ends the command.
bool StartConversion(Platform& platform, const WaypointCommand& command, std::string& inputPath,
                     std::string& agency) {
  try {
    inputPath = OpenInputFile(platform, command.openTitle, command.filter, command.defaultExt);
  } catch (const RuntimeFailure& failure) {
    if (failure.number == kCancelError) return false;
    throw;
  }
  if (!MayWriteOutput(platform.ui, HhPathFor(inputPath), command.overwriteTitle)) return false;
  agency = AskAgencySymbol(platform, command.agencyTitle, command.agencyFallback);
  return true;
}

// Runs `readLine` over the non-empty lines of the input into the HH file; the output stands as far
// as written when a failure ends the run.
template <class ReadLine>
void ConvertLines(const std::string& inputPath, ReadLine readLine) {
  LineReader input(inputPath);
  LineWriter output(HhPathFor(inputPath));
  try {
    for (std::string_view line; input.ReadLine(line);) {
      if (line.empty()) continue;
      if (!readLine(line, output)) break;
    }
  } catch (const WriteFailure&) {
    throw;
  } catch (const RuntimeFailure&) {
    output.Close();
    throw;
  }
  output.Close();
}

}  // namespace

void mnuConvgpxToHH(Session&, Platform& platform) {
  static constexpr WaypointCommand kGpx{"Open .gpx Waypoint File", ".gpx Files (*.gpx)|*.gpx", "gpx",
                                        "Convert .gpx to HH", "Convert .gpx to HH", "GEOCAC"};
  try {
    std::string inputPath, agency;
    if (!StartConversion(platform, kGpx, inputPath, agency)) return;
    GpxReader reader(agency);
    ConvertLines(inputPath, [&reader](std::string_view line, LineWriter& output) {
      std::string record;
      if (reader.ReadLine(line, record)) output.WriteLine(record);
      return true;
    });
    platform.ui.MsgBox("Conversion complete!", MsgButtons::Ok, MsgIcon::None, "Convert .gpx File to HH");
  } catch (const RuntimeFailure& failure) {
    platform.ui.MsgBox(failure.description);
  }
}

void mnuConvertGarminToHH(Session&, Platform& platform) {
  static constexpr WaypointCommand kGarmin{"Open Garmin Waypoint Text File", "Text Files (*.txt)|*.txt", "txt",
                                           "Convert Garmin to HH", "Convert Garmin TO HH", "ZJPLQ"};
  try {
    std::string inputPath, agency;
    if (!StartConversion(platform, kGarmin, inputPath, agency)) return;
    GarminReader reader(agency);
    const char* refusal = nullptr;
    ConvertLines(inputPath, [&](std::string_view line, LineWriter& output) {
      std::string record;
      switch (reader.ReadLine(line, record)) {
        case GarminReader::Result::kRecord: output.WriteLine(record); return true;
        case GarminReader::Result::kNone: return true;
        case GarminReader::Result::kInvalidGrid: refusal = "Invalid grid!"; return false;
        case GarminReader::Result::kInvalidDatum: refusal = "Invalid datum!"; return false;
        case GarminReader::Result::kInvalidFormat: refusal = "Invalid data format!"; return false;
      }
      return false;
    });
    if (refusal) {
      platform.ui.MsgBox(refusal, MsgButtons::Ok, MsgIcon::Critical, "Convert Garmin to HH");
      return;
    }
    platform.ui.MsgBox("Conversion complete!", MsgButtons::Ok, MsgIcon::None, "Convert Garmin Waypoint File");
  } catch (const RuntimeFailure& failure) {
    platform.ui.MsgBox(failure.description);
  }
}

}  // namespace benchlog
