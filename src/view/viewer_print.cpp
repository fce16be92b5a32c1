#include "view/viewer_print.hpp"

#include <string>
#include <vector>

#include "common/text.hpp"
#include "view/print_array.hpp"

namespace benchlog {
namespace {

std::vector<std::string> WithoutPidPrefix(std::vector<std::string> lines) {
  for (auto& line : lines) line = Mid(line, 9);
  return lines;
}

// The session's state or county, asked for once when it has none.
const std::string& AskOnce(Platform& platform, std::string& value, const char* prompt, const char* title) {
  if (value.empty()) value = UCase(platform.ui.InputBox(prompt, title, ""));
  return value;
}

void PrintListing(Session& session, Platform& platform, const std::vector<std::string>& lines, const char* kind) {
  const std::string& state = AskOnce(platform, session.shell.StateTxt, "Enter State", "State");
  const std::string& county = AskOnce(platform, session.shell.County, "Enter County", "County");
  PrintArray(platform, lines, county + " COUNTY " + state + kind, "", 5, 136);
}

}  // namespace

void PrintViewerText(frmView& view, Session& session, Platform& platform) {
  const std::string& caption = view.Caption;
  if (Left(caption, 14) == "View Positions") {
    ChoosePrinterOrCancel(platform);
    PrintArray(platform, Split(view.txtViewFile, "\r\n"), "", "", 5, 80);
  } else if (view.PhotoFlag == 1) {
    ChoosePrinterOrCancel(platform);
    PlatformPrinter(platform).PrintPicture(view.imgPhoto);
  } else if (Left(caption, 9) == "View Desc" || Left(caption, 4) == "Desc") {
    ChoosePrinterOrCancel(platform);
    PrintArray(platform, WithoutPidPrefix(Split(view.txtViewFile, "\r\n")), "", "", 10, 71);
  } else if (Left(caption, 8) == "Hcl File") {
    PrintListing(session, platform, Split(view.txtViewFile, "\r\n"), " HORIZONTAL CONTROL");
  } else if (Left(caption, 8) == "Vcl File") {
    PrintListing(session, platform, Split(view.txtViewFile, "\r\n"), " VERTICAL CONTROL");
  } else {
    ChoosePrinterOrCancel(platform);
    PrintArray(platform, Split(view.txtViewFile, "\r\n"), "", "", 5, 80);
  }
}

}  // namespace benchlog
