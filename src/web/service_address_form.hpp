#pragma once
// FrmServiceAddress ("Web Service Address"): where the agency's web service is reached and how long
// a request may wait for its answer, as a model over the settings of web/service_address.hpp.
#include <string>

#include "platform/dialog_model.hpp"
#include "platform/platform.hpp"
#include "session/session.hpp"

namespace benchlog {

class FrmServiceAddress : public DialogModel {
 public:
  static constexpr const char* kCaption = "Web Service Address";
  static constexpr int kMaxTimeoutSeconds = 3600;

  std::string txtAddress;  // the service's base URL
  std::string txtTimeout;  // the request time-out in whole seconds

  void Load(const SettingsStore& settings);
  // Checks both boxes; a fault is shown in a message box and the dialog stays open (false).
  // Otherwise saves the address (trimmed, without a last "/") and the time-out, and the tag becomes "Okay".
  bool cmdOK_Click(SettingsStore& settings, Ui& ui);
  void cmdCancel_Click() { Tag = "Canceled"; }
};

// What is wrong with a service address, in words for the user; "" when it is an http:// or
// https:// URL with a host (and at most a port and a path after it).
std::string ServiceAddressFault(const std::string& address);
// What is wrong with a time-out text; "" when it is a whole number of seconds from 1 to the maximum.
std::string RequestTimeoutFault(const std::string& seconds);

// Tools > Options > "Web Service &Address...": shows the dialog with the stored values.
void mnuServiceAddress(Session& session, Platform& platform);

}  // namespace benchlog
