// The mark reports of the Listings menu, run as commands on a fixture index, and the files the
// View menu shows.
#include <gtest/gtest.h>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "common/line_input.hpp"
#include "common/text.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"
#include "plot/frm_image.hpp"
#include "session/frm_select_points.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::TestSession;

struct ReportSetup {
  TestSession session;
  FakePlatform fake;
  CommandTable commands = BuildCommandTable();
  ReportSetup() {
    std::vector<std::string> elements = SplitCrLf(ReadWholeFile(testing::TestData("view/reports_index.ndx")));
    session.dataset.markIndex.Assign(elements);  // ends in the empty element behind the last CR LF
    fake.clock.year = 2026;
  }
  frmView& View() { return session.forms.Get<frmView>(); }
  void Run(const std::string& name) { commands.Run(name, session, fake.platform); }
};

TEST(MarkReports, EachReportListsSortsAndTitlesAsWorkedOutByHand) {
  for (const auto& c : testing::ReadRows("view/report_cases.txt", 13, '|')) {
    SCOPED_TRACE(c[0] + " " + c[1]);
    ReportSetup s;
    if (c[1] != std::string(1, '\0')) s.fake.ui.inputAnswers.push_back(c[1]);
    s.fake.ui.modalActions.push_back([](DialogModel&) {});
    s.View().Caption = "left over";
    s.Run(c[0]);
    if (c[2] == "nothing" || StartsWith(c[2], "none:")) {
      EXPECT_TRUE(s.fake.ui.modals.empty());
      const std::vector<std::string> boxes = c[2] == "nothing" ? std::vector<std::string>{} : std::vector<std::string>{"None found!"};
      EXPECT_EQ(s.fake.ui.MessageTexts(), boxes);
      if (!boxes.empty()) {
        EXPECT_EQ(s.fake.ui.messages[0].title, c[2].substr(5));
      }
      continue;
    }
    const std::vector<std::string> expected = Split(ReadWholeFile(testing::TestData("view/reports/" + c[2] + ".txt")), "\n");
    ASSERT_EQ(s.fake.ui.modals.size(), 1u);
    EXPECT_EQ(s.fake.ui.modals[0], &s.View());
    EXPECT_EQ(s.View().Caption, expected[0]);
    EXPECT_EQ(s.View().txtViewFile, Join(std::vector<std::string>(expected.begin() + 1, expected.end()), "\r\n"));
    EXPECT_TRUE(s.fake.ui.messages.empty());
  }
}

TEST(MarkReports, TheQuestionsAreAskedInTheirWords) {
  ReportSetup s;
  s.fake.ui.inputAnswers = {"abc", "x"};
  s.Run("mnuNotSearched");
  s.Run("mnuPrintNRList");
  EXPECT_EQ(s.fake.ui.inputs, (std::vector<std::string>{
                                  "Enter number of years (1-100):|Marks Not Searched For|10",
                                  "Enter agency symbol:  Ex: OCO\r\nor blank for all not recovered marks|Not Recovered List|",
                              }));
}

// The files of the View menu: present, they show in the viewer with their caption and size;
// missing, they give their message and no viewer.
TEST(ViewedFiles, ErrorAndTextFilesShowOrSayTheyAreMissing) {
  struct Case {
    const char* command;
    bool present;
    const char* caption;  // "" when the message is expected instead
    int fontSizeShown;
  };
  const Case cases[] = {
      {"mnuViewError", true, "Err File - ", 8},   {"mnuViewError", false, "", 0},
      {"mnuViewText", true, "Text File", 10},     {"mnuViewText", false, "", 0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.command) + (c.present ? " present" : " missing"));
    ReportSetup s;
    testing::TempFolder folder;
    const std::string path = folder.File("out.txt");
    if (c.present) folder.Write("out.txt", "line 1\r\nline 2\r\n");
    s.session.outputs.ErrFile = s.session.outputs.SA6File = path;
    s.fake.ui.fileAnswers.push_back(path);
    int shownSize = 0;
    s.fake.ui.modalActions.push_back([&shownSize](DialogModel& m) { shownSize = static_cast<frmView&>(m).FontSize; });
    s.Run(c.command);
    if (!c.present) {
      EXPECT_EQ(s.fake.ui.MessageTexts(), std::vector<std::string>{"File not found!"});
      EXPECT_TRUE(s.fake.ui.modals.empty());
      continue;
    }
    const std::string caption = c.caption + std::string(std::string(c.caption) == "Text File" ? "" : path);
    EXPECT_EQ(s.View().Caption, caption);
    EXPECT_EQ(s.View().txtViewFile, "line 1\r\nline 2\r\n");
    EXPECT_EQ(shownSize, c.fontSizeShown);
    EXPECT_EQ(s.View().FontSize, 10);  // back to 10 after a listing
  }
}

// Photo and sketch: the marks with the flag are offered; the picture of the chosen one, when its
// file exists, is read into frmImage and shown.
TEST(ViewedFiles, PhotoAndSketchOfferTheFlaggedMarksAndShowTheChosenPicture) {
  struct Case {
    const char* command;
    std::size_t choose;            // item to select; past the list for none
    const char* expectedItems;     // PIDs offered
    const char* expectedPicture;   // "" when no picture shows
  };
  const Case cases[] = {
      {"mnuViewPhoto", 1, "AB0001 AB0003", "AB0003ph.jpg"},
      {"mnuViewPhoto", 0, "AB0001 AB0003", ""},  // AB0001 has no file beside the dataset
      {"mnuViewSketch", 2, "AB0002 AB0003 AB0006", "AB0006sk.jpg"},
      {"mnuViewSketch", 9, "AB0002 AB0003 AB0006", ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.command) + " " + std::to_string(c.choose));
    ReportSetup s;
    testing::TempFolder folder;
    s.session.dataset.DatFilePath = folder.Path() + "/";
    for (const char* name : {"AB0003ph.jpg", "AB0006sk.jpg"}) {
      folder.Write(name, "jpeg");
      s.fake.pictures.sizes[folder.File(name)] = PictureSize{640, 480};
    }
    std::string offered;
    s.fake.ui.modalActions.push_back([&](DialogModel& m) {
      auto& list = static_cast<FrmSelectPoints&>(m);
      EXPECT_EQ(list.caption, "Select Photo to View");
      for (const auto& item : list.lstPoints) offered += (offered.empty() ? "" : " ") + FrmSelectPoints::PidOfItem(item);
      if (c.choose < list.selected.size()) list.selected[c.choose] = true;
      list.cmdOkay_Click();
    });
    s.fake.ui.modalActions.push_back([](DialogModel&) {});
    s.Run(c.command);
    EXPECT_EQ(offered, c.expectedItems);
    const std::string picture = c.expectedPicture;
    EXPECT_EQ(s.fake.ui.modals.size(), picture.empty() ? 1u : 2u);
    if (!picture.empty()) {
      EXPECT_EQ(s.session.forms.Get<frmImage>().view.picture, folder.File(picture));
      EXPECT_EQ(s.session.forms.Get<frmImage>().view.picture2Width, 640);
    }
  }
}

}  // namespace
}  // namespace benchlog
