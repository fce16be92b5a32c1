// The three transfer operations against a scripted service: every failure word, the tries, the
// waits, the login and the batches of PIDs.
#include <gtest/gtest.h>

#include <tuple>

#include "fakes/fakes.hpp"
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
  void Answers(std::initializer_list<const char*> bodies) { fake.http.answers.assign(bodies.begin(), bodies.end()); }
  long WaitedSeconds() const { return std::chrono::duration_cast<std::chrono::seconds>(fake.clock.slept).count(); }
};

struct Case {
  const char* name;
  std::initializer_list<const char*> answers;
  std::initializer_list<bool> logins;
  const char* errMsg;
  const char* response;
  std::size_t requests;
  long waited;  // seconds
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

TEST(GetUrlOnce, ClassifiesTheOneAnswer) {
  const Case cases[] = {
      {"an answer", {"LIST"}, {}, "", "LIST", 1, 0},
      {"login given", {"401 Unauthorized", "LIST"}, {true}, "", "LIST", 2, 0},
      {"login refused", {"401 Unauthorized"}, {false}, "Internet access failed", "401 Unauthorized", 1, 0},
      {"login refused, INPUT INCOMPLETE", {"Unauthorized INPUT INCOMPLETE"}, {false}, "Invalid input data!",
       "Unauthorized INPUT INCOMPLETE", 1, 0},
      {"lower case is an answer", {"input incomplete"}, {}, "", "input incomplete", 1, 0},
      {"INPUT INCOMPLETE", {"<p>INPUT INCOMPLETE</p>"}, {}, "Invalid input data!", "<p>INPUT INCOMPLETE</p>", 1, 0},
      {"ERROR REPORT is not known here", {"ERROR REPORT"}, {}, "", "ERROR REPORT", 1, 0},
      {"nothing", {""}, {}, "Request timeout.\r\nNo response received.", "", 1, 0},
      {"login given, then nothing", {"Unauthorized", ""}, {true}, "Request timeout.\r\nNo response received.", "", 2, 0},
  };
  for (const auto& c : cases) {
    Web web;
    web.Answers(c.answers);
    web.Logins(c.logins);
    std::string response = "old", errMsg = "old";
    GetUrlOnce(web.fake.platform, kUrl, response, errMsg);
    EXPECT_EQ(errMsg, c.errMsg) << c.name;
    EXPECT_EQ(response, c.response) << c.name;
    ASSERT_EQ(web.fake.http.requests.size(), c.requests) << c.name;
    EXPECT_EQ(web.fake.http.requests.front().url, kUrl) << c.name;
    EXPECT_EQ(web.logins, static_cast<int>(c.logins.size())) << c.name;
    // Left on for the caller, unless the login window turned it off and was refused.
    EXPECT_EQ(web.fake.ui.hourglass, c.logins.size() == 0 || *c.logins.begin()) << c.name;
    if (c.requests == 2) {
      EXPECT_EQ(web.fake.http.requests[1].userName + "/" + web.fake.http.requests[1].password, "surveyor/secret");
    }
  }
}

TEST(GetUrlRetry, TriesFiveTimesWithTheWidestClassification) {
  const char* timeout = "Request timeout.\r\nNo response received.";
  const Case cases[] = {
      {"an answer", {"LIST"}, {}, "", "LIST", 1, 0},
      {"nothing five times", {"", "", "", "", ""}, {}, timeout, "", 5, 25},
      {"nothing, then an answer", {"", "LIST"}, {}, timeout, "LIST", 2, 5},
      {"unavailable, then an answer", {"Temporarily Unavailable", "LIST"}, {}, "Server is temporarily unavailable!", "LIST", 2, 5},
      {"input incomplete in any case", {"input incomplete"}, {}, "Invalid input data!", "input incomplete", 1, 0},
      {"error report in any case", {"An Error Report"}, {}, "Error running servlet.\r\nContact OCO to report problem.",
       "An Error Report", 1, 0},
      {"login refused", {"Unauthorized"}, {false}, "Internet access failed!", "Unauthorized", 1, 0},
      {"login given: fetched, waited, fetched again", {"Unauthorized", "LIST", "LIST"}, {true}, "", "LIST", 3, 5},
  };
  for (const auto& c : cases) {
    Web web;
    web.Answers(c.answers);
    web.Logins(c.logins);
    std::string response, errMsg;
    GetUrlRetry(web.fake.platform, kUrl, response, errMsg);
    EXPECT_EQ(errMsg, c.errMsg) << c.name;
    EXPECT_EQ(response, c.response) << c.name;
    EXPECT_EQ(web.fake.http.requests.size(), c.requests) << c.name;
    EXPECT_EQ(web.WaitedSeconds(), c.waited) << c.name;
    EXPECT_FALSE(web.fake.ui.hourglass) << c.name;
    if (c.waited) {
      EXPECT_GE(web.fake.ui.doEventsCalls, 100) << c.name;  // the windows repaint while it waits
    }
  }
}

TEST(GetPidBatches, AsksInBatchesOfAHundredUpToAThousand) {
  struct Batches {
    int pids;
    std::size_t requests;
    const char* lastQuery;  // of the last request
    const char* lblInfo;
  };
  const Batches cases[] = {
      {1, 1, "1=AB0001", ""},
      {100, 1, "", ""},
      {101, 2, "1=AB0101", " 100 downloaded so far..."},
      {1001, 10, "", " 1000 downloaded so far..."},
  };
  for (const auto& c : cases) {
    Web web;
    for (std::size_t i = 0; i < c.requests; ++i) web.fake.http.answers.push_back("<" + std::to_string(i) + ">");
    std::string response, errMsg;
    GetPidBatches(web.fake.platform, Pids(c.pids), response, errMsg);
    EXPECT_EQ(errMsg, "") << c.pids;
    ASSERT_EQ(web.fake.http.requests.size(), c.requests) << c.pids;
    const std::string first = web.fake.http.requests.front().url;
    EXPECT_EQ(first.rfind(std::string(kPids) + "1=AB0001", 0), 0u) << c.pids;
    const std::string last = web.fake.http.requests.back().url;
    if (*c.lastQuery) {
      EXPECT_EQ(last, std::string(kPids) + c.lastQuery) << c.pids;
    } else {
      EXPECT_NE(last.find("&100=AB"), std::string::npos) << c.pids;
    }
    EXPECT_EQ(web.fake.http.requests.back().url.find("AB1001"), std::string::npos) << "never asked for";
    EXPECT_EQ(web.fake.progress.max, c.pids);
    EXPECT_EQ(web.fake.progress.lblInfo, c.lblInfo) << c.pids;
    std::string all;
    for (std::size_t i = 0; i < c.requests; ++i) all += "<" + std::to_string(i) + ">";
    EXPECT_EQ(response, all) << "the batches follow each other with nothing between";
  }
}

TEST(GetPidBatches, BlankEntriesUseUpTheirNumber) {
  Web web;
  std::vector<std::string> pids = Pids(9);
  pids[6] = "      ";
  web.Answers({"DESC"});
  std::string response, errMsg;
  GetPidBatches(web.fake.platform, pids, response, errMsg);
  EXPECT_EQ(web.fake.http.requests.front().url,
            std::string(kPids) + "1=AB0001&2=AB0002&3=AB0003&4=AB0004&5=AB0005&6=AB0006&8=AB0008&9=AB0009");
}

TEST(GetPidBatches, FailuresAndTheLogin) {
  const char* timeout = "Request timeout.\r\nNo response received.";
  const Case cases[] = {
      // A failure is not cleared by a later good try: the batch is dropped.
      {"nothing, then the batch", {"", "B1"}, {}, timeout, "", 2, 5},
      {"INPUT INCOMPLETE five times", {"INPUT INCOMPLETE", "INPUT INCOMPLETE", "INPUT INCOMPLETE", "INPUT INCOMPLETE",
                                       "INPUT INCOMPLETE"}, {}, "Invalid input data!", "", 5, 25},
      {"login refused in the second batch", {"B1", "Unauthorized"}, {false}, "Internet access failed", "B1", 2, 0},
      // Unauthorized on every try: five logins, and the body fetched after the last one is the batch.
      {"unauthorized five times", {"Unauthorized", "R1", "Unauthorized", "R2", "Unauthorized", "R3", "Unauthorized",
                                   "R4", "Unauthorized", "R5", "B2"}, {true, true, true, true, true}, "", "R5B2", 11, 25},
  };
  for (const auto& c : cases) {
    Web web;
    web.Answers(c.answers);
    web.Logins(c.logins);
    std::string response, errMsg;
    GetPidBatches(web.fake.platform, Pids(150), response, errMsg);
    EXPECT_EQ(errMsg, c.errMsg) << c.name;
    EXPECT_EQ(response, c.response) << c.name;
    EXPECT_EQ(web.fake.http.requests.size(), c.requests) << c.name;
    EXPECT_EQ(web.WaitedSeconds(), c.waited) << c.name;
    EXPECT_EQ(web.logins, static_cast<int>(c.logins.size())) << c.name;
  }
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
  const std::tuple<const char*, const char*, long> cases[] = {
      // address setting (nullptr: none), request time-out setting, expected time-out in ms
      {nullptr, nullptr, 60000},
      {"http://mirror.example/oco/", "0.25", 250},
      {"   ", "abc", 60000},
      {"https://oco.example//", "-1", 60000},
  };
  const char* urls[] = {"http://127.0.0.1:8642/cgi-bin/x?1=A", "http://mirror.example/oco/cgi-bin/x?1=A",
                        "http://127.0.0.1:8642/cgi-bin/x?1=A", "https://oco.example/cgi-bin/x?1=A"};
  int i = 0;
  for (const auto& [address, timeout, ms] : cases) {
    benchlog::testing::MemorySettings settings;
    if (address) settings.SaveSetting("Settings", "ServiceAddress", address);
    if (timeout) settings.SaveSetting("Settings", "RequestTimeout", timeout);
    EXPECT_EQ(ServiceUrl(settings, "/cgi-bin/x?1=A"), urls[i++]);
    EXPECT_EQ(RequestTimeout(settings).count(), ms);
    EXPECT_EQ(RetryWait(settings).count(), 5000);
  }
}
