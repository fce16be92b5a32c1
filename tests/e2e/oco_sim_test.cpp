// oco-sim over real HTTP: the shape of each path's answer on the sample dataset, the request log
// and the login; expected values are read off support/samples/sample.dat by hand. Its faults are
// seen through the program's transfer (web_transfers_e2e_test.cpp).
#include <gtest/gtest.h>

#include <memory>

#include "common/text.hpp"
#include "e2e/sim_get.hpp"
#include "fakes/oco_sim_process.hpp"
#include "fakes/test_paths.hpp"

namespace benchlog::testing {
namespace {

class OcoSimTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { sim_ = std::make_unique<OcoSimProcess>(SampleDataset()); }
  static void TearDownTestSuite() { sim_.reset(); }
  void SetUp() override { ASSERT_EQ(Get("/sim/reset"), "OK\n"); }
  static std::string Get(const std::string& target) { return SimGet(sim_->BaseUrl() + target); }
  static std::unique_ptr<OcoSimProcess> sim_;
};
std::unique_ptr<OcoSimProcess> OcoSimTest::sim_;

// The Descriptions, CORS and town paths are checked through the commands that use them
// (replacement_e2e_test.cpp, hh_discrepancies_test.cpp).
TEST_F(OcoSimTest, OtherPathsAnswerInTheirFormats) {
  const std::string known = Get("/CORS-Proxy/neighbors41/discrep_for_one?PID=FY3210");
  for (const char* row : {"<TR><TD>DESIGNATION</TD><TD>HILLSBORO</TD></TR>", "<TR><TD>NAD 83 LAT</TD><TD>N360342.56888</TD></TR>",
                          "<TR><TD>NAD 83 LON</TD><TD>W0790718.55999</TD></TR>"})
    EXPECT_NE(known.find(row), std::string::npos) << row;
  EXPECT_NE(Get("/CORS-Proxy/neighbors41/discrep_for_one?PID=ZZ0000").find("<TR><TD>UID</TD><TD>0</TD></TR>"),
            std::string::npos);
  EXPECT_NE(Get("/cgi-bin/get_mark_list.prl?1=COUNTY&2=NC").find("INPUT INCOMPLETE"), std::string::npos);
}

TEST_F(OcoSimTest, LogHoldsTheRequestLinesAsSentUntilReset) {
  Get("/cgi-bin/ds_pids.prl?1=FY3210&3=%20DL8724");
  Get("/CORS-Proxy/get_cities/stcity?ST=NC");
  EXPECT_EQ(Get("/sim/log"),
            "GET /cgi-bin/ds_pids.prl?1=FY3210&3=%20DL8724 HTTP/1.1\nGET /CORS-Proxy/get_cities/stcity?ST=NC HTTP/1.1\n");
  Get("/sim/reset");
  EXPECT_EQ(Get("/sim/log"), "");
}

TEST(OcoSimLogin, ServicePathsAskForTheLoginGiven) {
  OcoSimProcess sim(SampleDataset(), {"--user", "surveyor", "--password", "level"});
  const std::string target = sim.BaseUrl() + "/CORS-Proxy/get_cities/corspid?st=NC";
  EXPECT_NE(SimGet(target).find("Unauthorized"), std::string::npos);
  EXPECT_NE(SimGet(target, "surveyor", "level").find("<TR><TD>DL8724</TD></TR>"), std::string::npos);
  EXPECT_NE(SimGet(target, "surveyor", "levelx").find("Unauthorized"), std::string::npos);
  EXPECT_NE(SimGet(sim.BaseUrl() + "/sim/log").find("corspid"), std::string::npos);  // no login for /sim/
}

}  // namespace
}  // namespace benchlog::testing
