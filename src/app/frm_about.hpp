#pragma once
// frmAbout and frmOCOSplash: the program's name, version, purpose and disclaimer.
#include <string>

#include "platform/dialog_model.hpp"
#include "platform/platform.hpp"

namespace benchlog {

class FrmAbout : public DialogModel {
 public:
  FrmAbout();
  std::string caption;     // "About Benchlog"
  std::string lblVersion;  // "Version 1.0.0"
  std::string lblTitle;    // "Benchlog"
  std::string lblDescription;
  // "&System Info...": starts the system's information tool, or says it is unavailable.
  void cmdSysInfo_Click(Platform& platform);
};

class FrmOCOSplash : public DialogModel {
 public:
  FrmOCOSplash();
  std::string lblVersion;
  std::string lblProductName;
  std::string txtDisclaimer;
};

inline constexpr const char* kMaintainerAddress = "benchlog-support@benchlog.example";

}  // namespace benchlog
