#include <gtest/gtest.h>

#include <sstream>

#include "session/command_table.hpp"
#include "session/session.hpp"
#include "common/files.hpp"
#include "common/text.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::TempFolder;

// A dataset folder where PH0001 has a photo only, SK0002 a sketch only, PS0003 both.
struct ViewSetup {
  TempFolder folder;
  std::string dir = folder.Path() + "/";
  FakePlatform fake;
  frmView view;
  ViewSetup() {
    for (const char* name : {"PH0001ph.jpg", "SK0002sk.jpg", "PS0003ph.jpg", "PS0003sk.jpg"}) folder.Write(name, "jpeg");
  }
  void ShowMark(const std::string& pid) {
    view.Tag = pid;
    view.Activate(dir);
  }
  // The menus offered ("D"escription, "P"hoto, "S"ketch), then the caption, PhotoFlag and what
  // shows: the text, or the picture with its file name.
  std::string State() const {
    const std::string menus = std::string(view.mnuViewDescVisible ? "D" : "") + (view.mnuViewPhotoVisible ? "P" : "") +
                              (view.mnuViewSketchVisible ? "S" : "");
    const std::string shown = view.imgPhotoVisible ? "image " + view.imgPhoto.substr(dir.size()) : "";
    return menus + "|" + view.Caption + "|" + std::to_string(view.PhotoFlag) + "|" +
           (view.txtViewFileVisible ? "text" : "") + shown;
  }
};

std::string ThreeDescriptions() {
  std::string text;
  for (const char* pid : {"PH0001", "SK0002", "PS0003"}) {
    text += "1" + std::string(6, ' ') + std::string(71, 'h') + "\r\n";
    for (int line = 0; line < 2; ++line) text += " " + std::string(pid) + std::string(71, 'd') + "\r\n";
  }
  return text;
}

TEST(frmView, ActivationMenusAndClicksGiveTheStatesOfTheCaseTable) {
  for (const auto& c : testing::ReadRows("view/view_cases.txt", 16, '|')) {
    ViewSetup s;
    s.view.txtViewFile = ThreeDescriptions();
    s.view.SelStart = 55;
    s.view.mnuViewDescVisible = true;
    s.ShowMark(c[0]);
    EXPECT_EQ(s.view.SelStart, 0u);
    EXPECT_EQ(s.view.HasPhoto, FileExists(s.dir + c[0] + "ph.jpg") ? 1 : 0) << c[0];
    EXPECT_EQ(s.view.HasSketch, FileExists(s.dir + c[0] + "sk.jpg") ? 1 : 0) << c[0];
    std::istringstream actions(c[1]);
    for (std::string action; actions >> action;) {
      if (action == "photo") s.view.mnuViewPhoto(s.fake.ui);
      if (action == "sketch") s.view.mnuViewSketch(s.fake.ui);
      if (action == "desc") s.view.mnuViewDesc();
      if (action == "click") {
        actions >> s.view.SelStart;
        s.view.FollowClick(s.dir);
      }
    }
    EXPECT_EQ(s.State(), testing::JoinFields(c.begin() + 2, c.end(), "|")) << c[0] << " " << c[1];
    EXPECT_EQ(s.view.PhotoPath, s.dir + s.view.Tag + "ph.jpg") << c[1];
    EXPECT_EQ(s.view.SketchPath, s.dir + s.view.Tag + "sk.jpg") << c[1];
    EXPECT_TRUE(s.fake.ui.messages.empty()) << c[1];
  }
}

TEST(frmView, APictureThatCannotBeLoadedLeavesTheView) {
  ViewSetup s;
  s.ShowMark("PS0003");
  const std::string before = s.State();
  s.view.mnuViewPhoto(s.fake.ui, [](const std::string&) { return std::string("Invalid picture"); });
  EXPECT_EQ(s.fake.ui.MessageTexts(), std::vector<std::string>{"Invalid picture"});
  EXPECT_EQ(s.State(), before);
  EXPECT_EQ(s.view.imgPhoto, "");

  DeleteFileIfExists(s.folder.File("PS0003sk.jpg"));  // gone since activation
  s.view.mnuViewSketch(s.fake.ui);
  EXPECT_EQ(s.fake.ui.MessageTexts().back(), "File not found");
  EXPECT_EQ(s.State(), before);
}

TEST(frmView, AClickOnAListingOrAPlainText) {
  ViewSetup s;
  s.view.txtViewFile = ThreeDescriptions();
  s.view.Tag = "View listing";
  s.view.Caption = "Hcl File";
  s.view.SelStart = 400;
  s.view.FollowClick(s.dir);
  EXPECT_EQ(s.view.Tag, "View listing");
  EXPECT_EQ(s.view.Caption, "Hcl File");

  s.view.Tag = "";
  s.view.txtViewFile = "hello there";
  s.view.SelStart = 2;
  s.view.FollowClick(s.dir);  // no CR LF: the slice from its third character
  EXPECT_EQ(s.view.Tag, "llo th");
  EXPECT_EQ(s.view.Caption, "Description for llo th");
}

TEST(frmView, SaveAsFilterByKindOfText) {
  for (const auto& c : testing::ReadRows("view/save_filters.txt", 8, '|')) {
    ViewSetup s;
    s.view.strFileType = c[0];
    s.view.txtViewFile = "text\r\n";
    s.fake.ui.fileAnswers.push_back(s.folder.File("out.txt"));
    s.view.mnuFileSaveAs(s.fake.ui);
    ASSERT_EQ(s.fake.ui.fileDialogs.size(), 1u);
    EXPECT_EQ(testing::Describe(s.fake.ui.fileDialogs[0]), "save|Save file as:|" + testing::JoinFields(c.begin() + 1, c.end(), "|") + "|")
        << c[0];
    EXPECT_EQ(ReadWholeFile(s.folder.File("out.txt")), "text\r\n");
    EXPECT_TRUE(s.fake.ui.messages.empty());
  }
}

TEST(frmView, SaveAsAsksBeforeReplacing) {
  for (const auto& [answer, after] : {std::pair{MsgResult::No, "old"}, {MsgResult::Yes, "new text"}}) {
    ViewSetup s;
    s.view.txtViewFile = "new text";
    const std::string path = s.folder.Write("out.hcl", "old");
    s.fake.ui.fileAnswers.push_back(path);
    s.fake.ui.msgAnswers.push_back(answer);
    s.view.mnuFileSaveAs(s.fake.ui);
    ASSERT_EQ(s.fake.ui.messages.size(), 1u);
    const MessageRequest& asked = s.fake.ui.messages[0];
    EXPECT_EQ(asked.text, "File exists.  Overwrite?");
    EXPECT_EQ(asked.buttons, MsgButtons::YesNo);
    EXPECT_EQ(asked.title, "File Save As");
    EXPECT_EQ(asked.defaultButton, 2);
    EXPECT_EQ(ReadWholeFile(path), after);
  }
}

TEST(frmView, SaveAsCancelledOrUnwritable) {
  ViewSetup s;
  s.fake.ui.fileAnswers.push_back("");  // cancel
  s.view.mnuFileSaveAs(s.fake.ui);
  EXPECT_TRUE(s.fake.ui.messages.empty());
  s.fake.ui.fileAnswers.push_back(s.folder.File("no/such/folder/out.txt"));
  s.view.mnuFileSaveAs(s.fake.ui);
  EXPECT_EQ(s.fake.ui.MessageTexts(),
            std::vector<std::string>{"Path/File access error: could not write " + s.folder.File("no/such/folder/out.txt") +
                                     " (No such file or directory)"});
}

TEST(frmView, PrintIsNotThereYet) {
  ViewSetup s;
  s.view.mnuPrintDesc(s.fake.ui);
  EXPECT_EQ(s.fake.ui.MessageTexts(), std::vector<std::string>{kNotAvailableYet});
  EXPECT_EQ(s.fake.ui.messages[0].icon, MsgIcon::None);
}

TEST(frmView, ClosingResetsButKeepsTheText) {
  ViewSetup s;
  s.view.txtViewFile = "kept";
  s.ShowMark("PH0001");
  s.view.mnuViewPhoto(s.fake.ui);
  s.view.Close();
  EXPECT_EQ(s.view.PhotoFlag, 0);
  EXPECT_TRUE(s.view.txtViewFileVisible);
  EXPECT_FALSE(s.view.imgPhotoVisible);
  EXPECT_EQ(s.view.imgPhoto, "");
  EXPECT_EQ(s.view.Tag, "");
  EXPECT_EQ(s.view.txtViewFile, "kept");
}

TEST(frmView, LoadsItsSettingsWithDefaults) {
  testing::MemorySettings settings;
  frmView view;
  view.Load(settings);
  EXPECT_EQ(view.placement.height, 8475);
  EXPECT_EQ(view.placement.width, 9255);
  settings.SaveSetting("frmView", "Windowstate", "2");
  settings.SaveSetting("frmView", "Top", "300");
  settings.SaveSetting("frmView", "WindowState", "1");  // frmMain's spelling is not this window's
  view.Load(settings);
  EXPECT_EQ(view.placement.state, 2);
  EXPECT_EQ(view.placement.top, 300);
}

TEST(frmView, UnloadSavesThePlacement) {
  for (const auto& c : testing::ReadRows("view/unload_placement.txt", 3, '|')) {
    testing::MemorySettings settings;
    frmView view;
    view.placement = {std::stoi(c[0]), std::stol(c[1]), std::stol(c[2]), std::stol(c[3]), std::stol(c[4])};
    view.Tag = "PH0001";
    view.mnuViewDescVisible = view.mnuViewPhotoVisible = view.mnuViewSketchVisible = true;
    view.Unload(settings);
    std::vector<std::string> saved;
    for (const auto& [key, value] : settings.values) saved.push_back(key + "=" + value);
    EXPECT_EQ(saved, Split(c[5], ";"));
    EXPECT_EQ(view.Tag, "");
    EXPECT_FALSE(view.mnuViewDescVisible);
    EXPECT_FALSE(view.mnuViewPhotoVisible);
    EXPECT_TRUE(view.mnuViewSketchVisible);
  }
}

}  // namespace
}  // namespace benchlog
