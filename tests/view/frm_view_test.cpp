#include <gtest/gtest.h>

#include "session/command_table.hpp"
#include "session/session.hpp"
#include "common/files.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
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

TEST(frmView, ActivationOffersThePicturesThatExist) {
  const std::pair<const char*, const char*> cases[] = {{"PH0001", "P"}, {"SK0002", "S"}, {"PS0003", "PS"}, {"NO0004", ""}};
  for (const auto& [pid, menus] : cases) {
    ViewSetup s;
    s.view.SelStart = 55;
    s.view.mnuViewDescVisible = true;
    s.ShowMark(pid);
    EXPECT_EQ(s.State(), std::string(menus) + "||0|text") << pid;
    EXPECT_EQ(s.view.PhotoPath, s.dir + pid + "ph.jpg");
    EXPECT_EQ(s.view.SketchPath, s.dir + pid + "sk.jpg");
    EXPECT_EQ(s.view.HasPhoto, std::string(menus).find('P') != std::string::npos ? 1 : 0) << pid;
    EXPECT_EQ(s.view.HasSketch, std::string(menus).find('S') != std::string::npos ? 1 : 0) << pid;
    EXPECT_EQ(s.view.SelStart, 0u);
  }
}

// The sketch's caption has no PID, and PhotoFlag keeps what the photo set.
TEST(frmView, PicturesAndTheDescriptionInTurn) {
  ViewSetup s;
  s.ShowMark("PH0001");
  s.view.mnuViewPhoto(s.fake.ui);
  EXPECT_EQ(s.State(), "D|View Photo for point PH0001|1|image PH0001ph.jpg");
  s.view.mnuViewDesc();
  EXPECT_EQ(s.State(), "P|View Description for point PH0001|0|text");

  ViewSetup t;
  t.ShowMark("PS0003");
  t.view.mnuViewPhoto(t.fake.ui);
  EXPECT_EQ(t.State(), "DS|View Photo for point PS0003|1|image PS0003ph.jpg");
  t.view.mnuViewSketch(t.fake.ui);
  EXPECT_EQ(t.State(), "DP|View Sketch for point|1|image PS0003sk.jpg");

  ViewSetup u;
  u.ShowMark("SK0002");
  u.view.mnuViewSketch(u.fake.ui);
  EXPECT_EQ(u.State(), "D|View Sketch for point|0|image SK0002sk.jpg");
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

  ViewSetup t;
  t.ShowMark("NO0004");
  t.view.mnuViewPhoto(t.fake.ui);  // no photo: nothing happens
  EXPECT_TRUE(t.fake.ui.messages.empty());
  EXPECT_EQ(t.view.PhotoFlag, 0);
}

// Three Descriptions of three lines each, every line 78 characters and CR LF: line n starts at
// byte 80 * n.
std::string ThreeDescriptions() {
  std::string text;
  for (const char* pid : {"PH0001", "SK0002", "PS0003"}) {
    text += "1" + std::string(6, ' ') + std::string(71, 'h') + "\r\n";
    for (int line = 0; line < 2; ++line) text += " " + std::string(pid) + std::string(71, 'd') + "\r\n";
  }
  return text;
}

TEST(frmView, AClickShowsTheMarkOfTheLineNearIt) {
  struct Case {
    std::size_t selStart;
    const char* pid;
    const char* menus;
  };
  const Case cases[] = {
      {10, "PH0001", "P"},         // first 80 characters: the line after the first CR LF
      {0, "PH0001", "P"},
      {7 * 80 + 19, "PS0003", "PS"},  // inside the third Description
      {8 * 80 + 5, "PS0003", "PS"},
      {4 * 80 + 40, "SK0002", "S"},
      {6 * 80, "      ", ""},  // the start of a header line: its blanks
  };
  for (const auto& c : cases) {
    ViewSetup s;
    s.view.txtViewFile = ThreeDescriptions();
    s.ShowMark("PH0001");
    s.view.SelStart = c.selStart;
    s.view.FollowClick(s.dir);
    EXPECT_EQ(s.view.Tag, c.pid) << c.selStart;
    EXPECT_EQ(s.State(), std::string(c.menus) + "|Description for " + c.pid + "|0|text") << c.selStart;
    EXPECT_EQ(s.view.PhotoPath, s.dir + c.pid + "ph.jpg") << c.selStart;
  }
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
  const std::pair<const char*, const char*> cases[] = {
      {"dat", "MkData Files (*.dat)|*.dat"},   {"hcl", "Horiz Listing (*.hcl)|*.hcl"},
      {"vcl", "Vertical Listing (*.vcl)|*.vcl"}, {"txt", "Text File (*.txt)|*.txt"},
      {"ndx", "Index File (*.ndx)|*.ndx"},     {"rpt", "Report File (*.rpt)|*.rpt"},
      {"kml", ""},                             {"", ""}};
  for (const auto& [type, filter] : cases) {
    ViewSetup s;
    s.view.strFileType = type;
    s.view.txtViewFile = "text\r\n";
    s.fake.ui.fileAnswers.push_back(s.folder.File("out.txt"));
    s.view.mnuFileSaveAs(s.fake.ui);
    ASSERT_EQ(s.fake.ui.fileDialogs.size(), 1u);
    const FileDialogRequest& request = s.fake.ui.fileDialogs[0];
    EXPECT_EQ(request.filter, filter) << type;
    EXPECT_EQ(request.title, "Save file as:");
    EXPECT_EQ(request.initDir, "");
    EXPECT_TRUE(request.save);
    EXPECT_EQ(ReadWholeFile(s.folder.File("out.txt")), "text\r\n");
    EXPECT_TRUE(s.fake.ui.messages.empty());
  }
}

TEST(frmView, SaveAsAsksBeforeReplacing) {
  struct Case {
    MsgResult answer;
    const char* after;
  };
  for (const Case& c : {Case{MsgResult::No, "old"}, Case{MsgResult::Yes, "new text"}}) {
    ViewSetup s;
    s.view.txtViewFile = "new text";
    const std::string path = s.folder.Write("out.hcl", "old");
    s.fake.ui.fileAnswers.push_back(path);
    s.fake.ui.msgAnswers.push_back(c.answer);
    s.view.mnuFileSaveAs(s.fake.ui);
    ASSERT_EQ(s.fake.ui.messages.size(), 1u);
    const MessageRequest& asked = s.fake.ui.messages[0];
    EXPECT_EQ(asked.text, "File exists.  Overwrite?");
    EXPECT_EQ(asked.buttons, MsgButtons::YesNo);
    EXPECT_EQ(asked.title, "File Save As");
    EXPECT_EQ(asked.defaultButton, 2);
    EXPECT_EQ(ReadWholeFile(path), c.after);
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
  struct Case {
    WindowPlacement placement;
    std::vector<std::string> saved;
  };
  const Case cases[] = {
      {{kNormal, 150, 300, 6000, 7000},
       {"frmView/Height=6000", "frmView/Left=300", "frmView/Top=150", "frmView/Width=7000", "frmView/Windowstate=0"}},
      {{kNormal, -45, 300, 6000, 7000},
       {"frmView/Height=6000", "frmView/Left=300", "frmView/Width=7000", "frmView/Windowstate=0"}},
      {{kMaximized, 150, 300, 6000, 7000}, {"frmView/Windowstate=2"}},
  };
  for (const auto& c : cases) {
    testing::MemorySettings settings;
    frmView view;
    view.placement = c.placement;
    view.Tag = "PH0001";
    view.mnuViewDescVisible = view.mnuViewPhotoVisible = view.mnuViewSketchVisible = true;
    view.Unload(settings);
    std::vector<std::string> saved;
    for (const auto& [key, value] : settings.values) saved.push_back(key + "=" + value);
    EXPECT_EQ(saved, c.saved);
    EXPECT_EQ(view.Tag, "");
    EXPECT_FALSE(view.mnuViewDescVisible);
    EXPECT_FALSE(view.mnuViewPhotoVisible);
    EXPECT_TRUE(view.mnuViewSketchVisible);
  }
}

TEST(frmView, OneViewerPerSession) {
  testing::TestSession session;
  FakePlatform fake;
  frmView& view = ViewForm(session, fake.platform);
  EXPECT_EQ(&view, &ViewForm(session, fake.platform));
  EXPECT_EQ(view.session, &session);
  EXPECT_EQ(view.platform, &fake.platform);
}

}  // namespace
}  // namespace benchlog
