#include "web/service_address_form.hpp"

#include <algorithm>
#include <cctype>
#include <string>

#include "common/text.hpp"
#include "web/service_address.hpp"

namespace benchlog {
namespace {

constexpr const char* kSection = "Settings";

bool AllDigits(std::string_view text) {
  if (text.empty()) return false;
  for (const char c : text)
    if (!std::isdigit(static_cast<unsigned char>(c))) return false;
  return true;
}

// The address as it is stored: without surrounding blanks or a last "/", since paths are joined to it.
std::string StoredForm(const std::string& address) {
  std::string stored = Trim(address);
  const std::size_t scheme = stored.find("://");
  const std::size_t keep = scheme == std::string::npos ? 1 : scheme + 3;
  while (stored.size() > keep && stored.back() == '/') stored.pop_back();
  return stored;
}

}  // namespace

std::string ServiceAddressFault(const std::string& address) {
  const std::string url = StoredForm(address);
  const std::string lower = LCase(url);
  std::size_t schemeEnd = 0;
  if (StartsWith(lower, "http://")) schemeEnd = 7;
  else if (StartsWith(lower, "https://")) schemeEnd = 8;
  else return "The web service address must begin with http:// or https://.";
  if (url.find_first_of(" \t") != std::string::npos) return "The web service address may not contain blanks.";
  if (url.find_first_of("?#@") != std::string::npos)
    return "The web service address may not hold a user name, a query or a fragment.";

  const std::size_t hostEnd = std::min(url.find('/', schemeEnd), url.size());
  const std::string authority = url.substr(schemeEnd, hostEnd - schemeEnd);
  const std::size_t colon = authority.rfind(':');
  const bool bracketed = !authority.empty() && authority.front() == '[';  // an IPv6 address
  const bool hasPort = colon != std::string::npos && (!bracketed || authority.find(']') < colon);
  const std::string host = hasPort ? authority.substr(0, colon) : authority;
  if (host.empty() || host == "[]") return "The web service address has no host name.";
  if (hasPort) {
    const std::string port = authority.substr(colon + 1);
    if (!AllDigits(port) || port.size() > 5 || std::stoi(port) < 1 || std::stoi(port) > 65535)
      return "The port of the web service address must be a number from 1 to 65535.";
  }
  return "";
}

std::string RequestTimeoutFault(const std::string& seconds) {
  const std::string text = Trim(seconds);
  if (!AllDigits(text) || text.size() > 4 || std::stoi(text) < 1 || std::stoi(text) > FrmServiceAddress::kMaxTimeoutSeconds)
    return "The time-out must be a whole number of seconds from 1 to " +
           std::to_string(FrmServiceAddress::kMaxTimeoutSeconds) + ".";
  return "";
}

void FrmServiceAddress::Load(const SettingsStore& settings) {
  txtAddress = settings.GetSetting(kSection, kServiceAddressKey, kDefaultServiceAddress);
  txtTimeout = settings.GetSetting(kSection, kRequestTimeoutKey, std::to_string(kDefaultRequestTimeout));
}

bool FrmServiceAddress::cmdOK_Click(SettingsStore& settings, Ui& ui) {
  for (const std::string& fault : {ServiceAddressFault(txtAddress), RequestTimeoutFault(txtTimeout)}) {
    if (!fault.empty()) {
      ui.MsgBox(fault, MsgButtons::Ok, MsgIcon::Exclamation, kCaption);
      return false;
    }
  }
  txtAddress = StoredForm(txtAddress);
  txtTimeout = std::to_string(std::stoi(Trim(txtTimeout)));
  settings.SaveSetting(kSection, kServiceAddressKey, txtAddress);
  settings.SaveSetting(kSection, kRequestTimeoutKey, txtTimeout);
  Tag = "Okay";
  return true;
}

void mnuServiceAddress(Session& session, Platform& platform) {
  FrmServiceAddress& form = session.forms.Get<FrmServiceAddress>();
  form.Load(platform.settings);
  form.Tag = "Canceled";
  platform.ui.ShowModal(form);
}

}  // namespace benchlog
