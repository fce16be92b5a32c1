// The three transfer operations against a scripted service: every failure word, the tries, the
// waits, the login and the batches of PIDs.
#include <gtest/gtest.h>

#include <sstream>

#include "fakes/fakes.hpp"
#include "fakes/test_rows.hpp"
#include "web/frm_login.hpp"
#include "web/service_address.hpp"
#include "web/web_transfers.hpp"

using namespace benchlog;

namespace {

constexpr const char* kUrl = "http://127.0.0.1:8642/cgi-bin/get_mark_list.prl?1=RADIUS";
constexpr const char* kPids = "http://127.0.0.1:8642/cgi-bin/ds_pids.prl?";

struct Web {
  benchlog::testing::FakePlatform fake;
  int logins = 0;
  // Each login dialog answers in turn: true gives "surveyor"/"secret", false cancels.
  void Logins(std::initializer_list<bool> answers) {
    for (const bool given : answers)
      fake.ui.modalActions.push_back([this, given](DialogModel& model) {
        auto& login = dynamic_cast<frmLogin&>(model);
        ++logins;
        if (!given) return login.cmdCancel_Click();
        login.txtUserName = "surveyor";
        login.txtPassword = "secret";
        login.cmdOK_Click(fake.settings);
      });
  }
  long WaitedSeconds() const { return std::chrono::duration_cast<std::chrono::seconds>(fake.clock.slept).count(); }
};

std::vector<std::string> Pids(int count) {
  std::vector<std::string> pids;
  for (int i = 1; i <= count; ++i) {
    const std::string number = std::to_string(i);
    pids.push_back("AB" + std::string(4 - number.size(), '0') + number);
  }
  return pids;
}

}  // namespace

// The rows of tests/data/web/transfers.txt.
TEST(WebTransfers, ClassifyEveryAnswerAsTheirTableSays) {
  for (const auto& c : benchlog::testing::ReadRows("web/transfers.txt", 21, '|')) {
    ASSERT_EQ(c.size(), 8u);
    const std::string name = c[0] + "|" + c[1];
    Web web;
    std::istringstream answers(c[1]);
    for (std::string answer; std::getline(answers, answer, ',');) web.fake.http.answers.push_back(answer);
    if (c[1].empty() || c[1].back() == ',') web.fake.http.answers.push_back("");
    for (const char login : c[2]) web.Logins({login == 'Y'});
    std::string response = "old", errMsg = "old";
    if (c[0] == "once") GetUrlOnce(web.fake.platform, kUrl, response, errMsg);
    if (c[0] == "retry") GetUrlRetry(web.fake.platform, kUrl, response, errMsg);
    if (c[0] == "batches") GetPidBatches(web.fake.platform, Pids(150), response, errMsg);
    EXPECT_EQ(errMsg, c[3]) << name;
    EXPECT_EQ(response, c[4]) << name;
    ASSERT_EQ(web.fake.http.requests.size(), std::stoul(c[5])) << name;
    EXPECT_EQ(web.WaitedSeconds(), std::stol(c[6])) << name;
    EXPECT_EQ(web.fake.ui.hourglass, c[7] == "1") << name;
    EXPECT_EQ(web.logins, static_cast<int>(c[2].size())) << name;
    if (c[0] != "batches") {
      EXPECT_EQ(web.fake.http.requests.front().url, kUrl) << name;
    }
    // After a login every request carries its credentials; the windows repaint during every wait.
    if (!c[2].empty() && c[2].back() == 'Y') {
      EXPECT_EQ(web.fake.http.requests.back().userName + "/" + web.fake.http.requests.back().password, "surveyor/secret");
    }
    if (web.WaitedSeconds()) {
      EXPECT_GE(web.fake.ui.doEventsCalls, 100) << name;
    }
  }
}

TEST(GetPidBatches, AsksInBatchesOfAHundredUpToAThousand) {
  for (const auto& c : benchlog::testing::ReadRows("web/pid_batches.txt", 4, '|')) {
    Web web;
    const std::size_t requests = std::stoul(c[1]);
    std::string all;
    for (std::size_t i = 0; i < requests; ++i) {
      web.fake.http.answers.push_back("<" + std::to_string(i) + ">");
      all += web.fake.http.answers.back();
    }
    std::string response, errMsg;
    GetPidBatches(web.fake.platform, Pids(std::stoi(c[0])), response, errMsg);
    EXPECT_EQ(errMsg, "") << c[0];
    ASSERT_EQ(web.fake.http.requests.size(), requests) << c[0];
    EXPECT_EQ(web.fake.http.requests.front().url.rfind(std::string(kPids) + "1=AB0001", 0), 0u) << c[0];
    const std::string last = web.fake.http.requests.back().url;
    if (!c[2].empty()) {
      EXPECT_EQ(last, std::string(kPids) + c[2]) << c[0];
    } else {
      EXPECT_NE(last.find("&100=AB"), std::string::npos) << c[0];
    }
    EXPECT_EQ(last.find("AB1001"), std::string::npos) << "never asked for";
    EXPECT_EQ(web.fake.progress.max, std::stoi(c[0]));
    EXPECT_EQ(web.fake.progress.lblInfo, c[3]) << c[0];
    EXPECT_EQ(response, all) << "the batches follow each other with nothing between";
  }
}

TEST(GetPidBatches, BlankEntriesUseUpTheirNumber) {
  Web web;
  std::vector<std::string> pids = Pids(9);
  pids[6] = "      ";
  web.fake.http.answers.push_back("DESC");
  std::string response, errMsg;
  GetPidBatches(web.fake.platform, pids, response, errMsg);
  EXPECT_EQ(web.fake.http.requests.front().url,
            std::string(kPids) + "1=AB0001&2=AB0002&3=AB0003&4=AB0004&5=AB0005&6=AB0006&8=AB0008&9=AB0009");
}

TEST(FrmLogin, RemembersThePasswordOnlyWhenTicked) {
  benchlog::testing::MemorySettings settings;
  frmLogin login;
  login.Activate(settings);
  EXPECT_EQ(login.chkRember, 0);
  login.txtUserName = "surveyor";
  login.txtPassword = "first";
  login.chkRember = 1;
  login.cmdOK_Click(settings);
  EXPECT_TRUE(login.LoginSucceeded);
  EXPECT_EQ(login.Tag, "Okay");
  frmLogin again;
  again.Activate(settings);
  again.txtPassword = "second";
  again.chkRember = 0;  // unticked: the stored password stays and comes back next time
  again.cmdOK_Click(settings);
  frmLogin third;
  third.Activate(settings);
  EXPECT_EQ(third.txtUserName, "surveyor");
  EXPECT_EQ(third.txtPassword, "first");
  EXPECT_EQ(third.chkRember, 0);
  third.Escape();
  EXPECT_FALSE(third.LoginSucceeded);
}

TEST(ServiceAddress, SettingsGiveTheUrlAndTheWaits) {
  for (const auto& c : benchlog::testing::ReadRows("web/service_settings.txt", 4, '|')) {
    benchlog::testing::MemorySettings settings;
    if (c[0] != "-") settings.SaveSetting("Settings", "ServiceAddress", c[0]);
    if (c[1] != "-") settings.SaveSetting("Settings", "RequestTimeout", c[1]);
    EXPECT_EQ(ServiceUrl(settings, "/cgi-bin/x?1=A"), c[2]) << c[0];
    EXPECT_EQ(RequestTimeout(settings).count(), std::stol(c[3])) << c[1];
    EXPECT_EQ(RetryWait(settings).count(), 5000);
  }
}
