// HH discrepancies end to end: the command against oco-sim on the sample dataset through the
// program's Qt transfer. The expected report was worked out by hand from the sample's values of
// FY3209 (adjusted, five decimals of seconds) and FY0871 (scaled, none).
#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "common/text.hpp"
#include "e2e/sim_client.hpp"
#include "view/frm_edit.hpp"
#include "web/frm_login.hpp"

namespace benchlog::testing {
namespace {

const std::string kQuery = "GET /CORS-Proxy/neighbors41/discrep_for_one?PID=";

class HhDiscrepanciesTest : public SampleSimTest {
 protected:
  // Runs the command on a copy of `hhText`; the editor's caption, lock and text when it was shown.
  std::string Run(const std::string& hhText) {
    fake.ui.fileAnswers.push_back(folder.Write("survey.txt", hhText));
    std::string shown;
    fake.ui.modalActions.push_back([&shown](DialogModel& model) {
      const auto& edit = dynamic_cast<frmEdit&>(model);
      shown = edit.Caption + (edit.Locked ? " (locked)\n" : "\n") + edit.txtEdit;
    });
    BuildCommandTable().Run("mnuHHDiscrep", session, fake.platform);
    EXPECT_FALSE(fake.progress.Visible());
    EXPECT_FALSE(fake.ui.hourglass);
    return shown;
  }
};

TEST_F(HhDiscrepanciesTest, ReportsEachKindOfDiscrepancyInTheEditor) {
  const std::string expected = ReadWholeFile(TestData("handheld/discrepancies_rpt.expected"));
  EXPECT_EQ(Run(ReadWholeFile(TestData("handheld/discrepancies_hh.txt"))), "HH Script Problems (locked)\n" + expected);
  EXPECT_EQ(ReadWholeFile(folder.File("survey.rpt")), expected);
  // No request for the lines that are no record.
  std::string asked;
  for (const char* pid : {"FY3209", "FY0871", "FY0871", "FY0871", "ZZ9999", "FY3209"})
    asked += kQuery + pid + " HTTP/1.1\n";
  EXPECT_EQ(Log(), asked);
  EXPECT_EQ(Describe(fake.ui.fileDialogs.at(0)), "open|HH Discrepancies|Text Files (*.txt)|*.txt|C:\\");
  EXPECT_EQ(Describe(fake.progressHistory.at(0)), "Checking OCO IDB|Please wait...|0/8");
  EXPECT_TRUE(fake.ui.messages.empty());
}

// Every failure of the request ends the run with an empty message and no report shown; the report
// keeps what came before. The tries tell the failure words apart: those that stop at once, those
// that wait and try again, and a failure that stays set when a later try is answered.
TEST_F(HhDiscrepanciesTest, AFailingServiceEndsTheRunWithAnEmptyMessage) {
  struct Case {
    const char* fault;
    int count;
    std::size_t requests;
  };
  const Case cases[] = {
      {"input-incomplete", 1, 1}, {"error-report", 1, 1}, {"unauthorized", 1, 1},
      {"temporarily-unavailable", 5, 5}, {"temporarily-unavailable", 1, 2}, {"empty", 5, 5},
  };
  const std::string hh = "ab1234|LOW CASE|N360000|W0790000|HH2|OCO\r\nFY0871|K 123|N360427|W0790557|HH2|OCO\r\n";
  for (const Case& c : cases) {
    SCOPED_TRACE(std::string(c.fault) + " x" + std::to_string(c.count));
    SetUp();
    fake.ui.messages.clear();
    const std::string fault = "/sim/fault?path=/CORS-Proxy/neighbors41/discrep_for_one&kind=" + std::string(c.fault) +
                              "&count=" + std::to_string(c.count);
    ASSERT_EQ(SimGet(sim->BaseUrl() + fault), "OK\n");
    if (c.fault == std::string("unauthorized"))
      fake.ui.modalActions.push_back([](DialogModel& model) { dynamic_cast<frmLogin&>(model).cmdCancel_Click(); });
    EXPECT_EQ(Run(hh), "");  // the report is not shown
    fake.ui.modalActions.clear();
    EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{""});
    EXPECT_EQ(Split(Log(), "\n").size() - 1, c.requests);
    EXPECT_EQ(ReadWholeFile(folder.File("survey.rpt")), "PID              PROBLEM\r\n\r\nab1234 - Invalid PID\r\n");
  }
}

}  // namespace
}  // namespace benchlog::testing
