// The transfer operations through the program's own Qt transfer against oco-sim: each failure word
// and each count of tries as the service really answers, with the waits and the time-out shortened.
#include <gtest/gtest.h>

#include "common/text.hpp"
#include "e2e/sim_client.hpp"
#include "fakes/test_rows.hpp"
#include "web/frm_login.hpp"
#include "web/web_transfers.hpp"

namespace benchlog::testing {
namespace {

const char* const kPaths[] = {"/cgi-bin/get_mark_list.prl?1=COUNTY&2=NC&3=135&4=X-0-0",
                              "/cgi-bin/get_mark_list.prl?1=RADIUS&2=N360342&3=W0790718&4=1&5=X-0-0"};

TEST(WebTransfersOverHttp, ClassifyWhatTheServiceAnswers) {
  OcoSimProcess sim(SampleDataset(), {"--user", "surveyor", "--password", "level"});
  for (const auto& c : ReadRows("web/transfers_e2e.txt", 19, '|')) {
    ASSERT_EQ(c.size(), 7u);
    const std::string name = c[0] + " " + c[1] + " " + c[3];
    const std::string op = c[0];
    const std::string path = op == "batches" ? "/cgi-bin/ds_pids.prl" : "/cgi-bin/get_mark_list.prl";
    ASSERT_EQ(SimGet(sim.BaseUrl() + "/sim/reset"), "OK\n");
    if (c[1] != "-") {
      const std::string fault = "/sim/fault?path=" + path + "&kind=" + c[1] + "&count=" + c[2];
      ASSERT_EQ(SimGet(sim.BaseUrl() + fault), "OK\n") << name;
    }
    SimClient run;
    run.UseService(sim.BaseUrl(), "1");
    run.transport.UserName = "surveyor";  // the login of an earlier request of the run
    run.transport.Password = "level";
    FakePlatform& fake = run.fake;
    for (const char login : c[3])
      fake.ui.modalActions.push_back([&fake, login](DialogModel& model) {
        auto& form = dynamic_cast<frmLogin&>(model);
        if (login == 'N') return form.cmdCancel_Click();
        form.txtUserName = "surveyor";
        form.txtPassword = "level";
        form.cmdOK_Click(fake.settings);
      });
    std::string response, errMsg;
    if (op == "once") GetUrlOnce(fake.platform, sim.BaseUrl() + kPaths[0], response, errMsg);
    if (op == "retry") GetUrlRetry(fake.platform, sim.BaseUrl() + kPaths[1], response, errMsg);
    if (op == "batches") {
      std::vector<std::string> pids(150, "FY3210");
      GetPidBatches(fake.platform, pids, response, errMsg);
    }
    EXPECT_EQ(errMsg, c[4]) << name;
    if (c[5] != "-") {
      EXPECT_EQ(Split(SimGet(sim.BaseUrl() + "/sim/log"), "\n").size() - 1, std::stoul(c[5])) << name;
    }
    EXPECT_EQ(response.empty(), c[6] == "1") << name;
    if (errMsg.empty() && op == "batches") {
      EXPECT_NE(response.find("HILLSBORO"), std::string::npos) << name;
    }
  }
}

}  // namespace
}  // namespace benchlog::testing
