#include "app/frm_about.hpp"

#include "app/main_window.hpp"
#include "common/text.hpp"

namespace benchlog {

FrmAbout::FrmAbout()
    : caption(std::string("About ") + kAppTitle),
      lblVersion("Version " + VersionText()),
      lblTitle(kAppTitle),
      lblDescription(std::string("This program is designed for extracting data from OCO MKDATA datasets.") +
                     "  Report trouble or suggestions for enhancements to:   " + kMaintainerAddress + kCrLf +
                     "Please include information about your system, the function you were performing when the "
                     "problem occured, the date of the OCO data set you were using and your email address or "
                     "telephone number.") {}

void FrmAbout::cmdSysInfo_Click(Platform& platform) {
  if (!platform.shell.RunSystemInformation()) platform.ui.MsgBox("System Information Is Unavailable At This Time");
}

FrmOCOSplash::FrmOCOSplash()
    : lblVersion("Version " + VersionText()),
      lblProductName(kAppTitle),
      txtDisclaimer(
          "Benchlog is provided as is, without warranty of any kind, express or implied, including but not "
          "limited to the warranties of merchantability, fitness for a particular purpose and accuracy of the "
          "data it reads, computes or writes. Check every value against the agency's published data sheets "
          "before you rely on it in the field or in a survey product. In no event shall the authors be liable "
          "for any claim, damages or other liability arising from the use of the program." +
          std::string(kCrLf) + kCrLf +
          "Street Atlas, Microsoft Word and Google Earth, named in this program, are products and trademarks "
          "of their respective makers, who have not endorsed Benchlog.") {}

}  // namespace benchlog
