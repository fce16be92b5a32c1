#include "web/web_transfers.hpp"

#include <algorithm>
#include <stdexcept>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "web/frm_login.hpp"
#include "web/service_address.hpp"

namespace benchlog {
namespace {

constexpr const char* kPidsPath = "/cgi-bin/ds_pids.prl?";
constexpr auto kRepaintEvery = std::chrono::milliseconds(50);

bool Holds(const std::string& body, std::string_view word) { return body.find(word) != std::string::npos; }

HttpTransport& Inet1(Platform& platform) {
  if (!platform.http) throw std::logic_error("No web transfer object is set up");
  return *platform.http;
}

// The service asked for a login: frmLogin, and on OK its user name and password go to the transfer
// object for this and every later request of the run. False when the user refused.
bool LoginGiven(Platform& platform) {
  frmLogin login;
  platform.ui.SetHourglass(false);
  login.Activate(platform.settings);
  platform.ui.ShowModal(login);
  if (!login.LoginSucceeded) return false;
  platform.ui.SetHourglass(true);
  Inet1(platform).UserName = login.txtUserName;
  Inet1(platform).Password = login.txtPassword;
  return true;
}

// The pause between two tries, on the monotonic clock, with the windows repainted in between.
void WaitBeforeRetry(Platform& platform) {
  const auto end = platform.clock.Now() + RetryWait(platform.settings);
  for (auto now = platform.clock.Now(); now < end; now = platform.clock.Now()) {
    platform.clock.Sleep(std::min<Clock::Duration>(end - now, kRepaintEvery));
    platform.ui.DoEvents();
  }
}

// The query of one batch: "j=<pid>&" for every non-blank PID from index o + 1, j counting from 1
// whether or not its PID is blank, up to 100 or to the last PID. `last` becomes the last j taken.
std::string BatchQuery(const std::vector<std::string>& pids, std::size_t o, std::size_t& last) {
  std::string query;
  for (std::size_t j = 1; j <= kBatchSize; ++j) {
    last = j;
    if (o + j > pids.size()) throw SubscriptOutOfRange();
    const std::string& pid = pids[o + j - 1];
    if (!Trim(pid).empty()) query += std::to_string(j) + "=" + pid + "&";
    if (o + j == pids.size()) break;
  }
  if (!query.empty()) query.pop_back();
  return query;
}

// Up to five tries of the current URL; the body of the last fetch. A failure text stays set even
// when a later try brings the batch (the caller then drops it); false when the login was refused.
bool FetchBatch(Platform& platform, std::string& body, std::string& ErrMsg) {
  HttpTransport& inet = Inet1(platform);
  for (int attempt = 0; attempt < kTries; ++attempt) {
    body = inet.OpenURL();
    if (Holds(body, "Unauthorized")) {
      if (!LoginGiven(platform)) {
        ErrMsg = kLoginFailed;
        return false;
      }
      body = inet.OpenURL();  // not looked at: the request is sent once more after the wait
      ErrMsg.clear();
    } else if (Holds(body, "INPUT INCOMPLETE")) {
      ErrMsg = kInvalidInput;
    } else if (!body.empty()) {
      return true;
    } else {
      ErrMsg = kRequestTimeout;
    }
    WaitBeforeRetry(platform);
  }
  return true;
}

}  // namespace

void GetUrlOnce(Platform& platform, const std::string& url, std::string& response, std::string& ErrMsg) {
  response.clear();
  ErrMsg.clear();
  platform.ui.SetHourglass(true);
  HttpTransport& inet = Inet1(platform);
  inet.URL = url;
  std::string body = inet.OpenURL();
  if (Holds(body, "Unauthorized")) {
    if (LoginGiven(platform)) {
      body = inet.OpenURL();
      ErrMsg.clear();
    } else {
      ErrMsg = kLoginFailed;
    }
  }
  if (Holds(body, "INPUT INCOMPLETE")) ErrMsg = kInvalidInput;
  if (body.empty()) ErrMsg = kRequestTimeout;
  response = std::move(body);
}

void GetPidBatches(Platform& platform, const std::vector<std::string>& pids, std::string& response, std::string& ErrMsg) {
  response.clear();
  ErrMsg.clear();
  Progress& progress = platform.dlgProcessing;
  progress.max = static_cast<int>(pids.size());
  std::size_t o = 0;
  for (int batch = 0; batch < kMaxBatches; ++batch) {
    std::size_t j = 0;
    Inet1(platform).URL = ServiceUrl(platform.settings, kPidsPath + BatchQuery(pids, o, j));
    std::string body;
    if (!FetchBatch(platform, body, ErrMsg) || !ErrMsg.empty()) return;
    response += body;
    if (o + j == pids.size()) return;
    if (progress.max > static_cast<int>(o + j)) progress.value = static_cast<int>(o + j);
    progress.lblInfo = " " + std::to_string(o + kBatchSize) + " downloaded so far...";
    progress.Refresh();
    o += kBatchSize;
  }
}

void GetUrlRetry(Platform& platform, const std::string& url, std::string& response, std::string& ErrMsg) {
  response.clear();
  ErrMsg.clear();
  std::string body;
  try {
    HttpTransport& inet = Inet1(platform);
    inet.URL = url;
    platform.ui.SetHourglass(true);
    for (int attempt = 0; attempt < kTries; ++attempt) {
      body = inet.OpenURL();
      if (Holds(body, "Unauthorized")) {
        if (!LoginGiven(platform)) {
          ErrMsg = std::string(kLoginFailed) + "!";
          break;
        }
        body = inet.OpenURL();
        ErrMsg.clear();
        WaitBeforeRetry(platform);
        continue;
      }
      const std::string upper = UCase(body);
      if (Holds(upper, "INPUT INCOMPLETE")) {
        ErrMsg = kInvalidInput;
        break;
      }
      if (Holds(upper, "ERROR REPORT")) {
        ErrMsg = kServletError;
        break;
      }
      if (Holds(upper, "TEMPORARILY UNAVAILABLE")) {
        ErrMsg = kTemporarilyUnavailable;
      } else if (!body.empty()) {
        break;
      } else {
        ErrMsg = kRequestTimeout;
      }
      WaitBeforeRetry(platform);
    }
  } catch (const RuntimeFailure& failure) {
    ErrMsg += std::string(kCrLf) + failure.description;
  }
  platform.ui.SetHourglass(false);
  response = std::move(body);
}

}  // namespace benchlog
