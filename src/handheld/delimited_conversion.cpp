// The command that turns a delimited text file of positions into an HH file.
#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/line_writer.hpp"
#include "common/paths.hpp"
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "handheld/delimited_line.hpp"
#include "handheld/dlg_delim_and_type.hpp"
#include "handheld/handheld_commands.hpp"
#include "handheld/hh_command_start.hpp"
#include "handheld/hh_record.hpp"

namespace benchlog {
namespace {

constexpr const char* kCompleteTitle = "Convert Delimited File to HH";

std::string FirstLine(const std::string& path) {
  LineReader reader(path);
  std::string line;
  reader.ReadLine(line);
  return line;
}

dlgDelimAndType& DelimForm(Session& session, Platform& platform) {
  const bool loaded = session.forms.Loaded<dlgDelimAndType>();
  dlgDelimAndType& dialog = session.forms.Get<dlgDelimAndType>();
  if (!loaded) dialog.Load(platform.settings, platform.paths.supportPath);
  return dialog;
}

// The attribute lists for HH work, over whatever was restored.
void SetHhAttributes(dlgDelimAndType& dialog) {
  dialog.cboHSourceList = {"O"};
  dialog.cboHSource = "O";
  dialog.cboHOrderList = {"4"};
  dialog.cboHOrder = "4";
  dialog.cboHTechList = {"W", "X"};
  dialog.cboHTech = "W";
}

void Convert(const std::string& inputPath, const std::string& outputPath, const std::string& delimiter,
             const DelimitedColumns& columns, const DelimitedAttributes& attributes, std::string agency,
             Ui& ui) {
  LineReader input(inputPath);
  LineWriter output(outputPath);
  try {
    std::string record;
    for (std::string_view line; input.ReadLine(line);) {
      const LineResult result = ConvertDelimitedLine(line, delimiter, columns, attributes, agency, record);
      if (result == LineResult::kStop) {
        output.Close();
        return;
      }
      if (result == LineResult::kRecord) output.WriteLine(record);
    }
  } catch (const WriteFailure&) {
    throw;
  } catch (const RuntimeFailure&) {
    output.Close();  // what was written stands
    throw;
  }
  output.Close();
  ui.MsgBox("Conversion complete!");
}

}  // namespace

void mnuConvDelimtoHH(Session& session, Platform& platform) {
  Ui& ui = platform.ui;
  std::string inputPath;
  try {
    inputPath = OpenInputFile(platform, "Open Delimited Text File", "Text Files (*.txt)|*.txt|All Files (*.*)|*.*",
                              "txt");
  } catch (const RuntimeFailure& failure) {
    if (failure.number == kCancelError) return;
    throw;
  }
  try {
    platform.settings.SaveSetting("Settings", "LastDesDirectory", FolderOf(inputPath));
    if (!FileExists(inputPath)) {
      ui.MsgBox("File not found!");
      return;
    }
    if (FileLength(inputPath) == 0) {
      ui.MsgBox("Input file is empty!", MsgButtons::Ok, MsgIcon::Critical, kCompleteTitle);
      return;
    }
    dlgDelimAndType& dialog = DelimForm(session, platform);
    dialog.txtSampleData = FirstLine(inputPath);
    SetHhAttributes(dialog);
    dialog.Tag.clear();
    ui.ShowModal(dialog);
    if (dialog.Tag.empty() || dialog.Tag == "Canceled") return;
    const std::string delimiter = dialog.Tag == "Tab" ? "\t" : dialog.Tag;
    const DelimitedAttributes attributes{dialog.cboHOrder, dialog.cboHTech};
    const DelimitedColumns columns = IdentifyColumns(dialog.cboDataType);

    const std::string outputPath = HhPathFor(inputPath);
    if (!MayWriteOutput(ui, outputPath, "Convert Garmin to HH")) return;
    const std::string agency = AskAgencySymbol(platform, "Convert Delimited Text File TO HH", "LOCSUR");
    Convert(inputPath, outputPath, delimiter, columns, attributes, agency, ui);
  } catch (const RuntimeFailure& failure) {
    ui.MsgBox(failure.description);
  }
}

}  // namespace benchlog
