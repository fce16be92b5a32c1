// The viewer (frmView as a model), the class filter, and the commands that list marks and show
// their Descriptions in the viewer.
#include <gtest/gtest.h>

#include <map>
#include <sstream>
#include <tuple>

#include "app/command_registry.hpp"
#include "dataset/build_mark_index.hpp"
#include "session/command_table.hpp"
#include "session/frm_select_points.hpp"
#include "session/session.hpp"
#include "common/files.hpp"
#include "common/text.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "fakes/test_rows.hpp"
#include "session/frm_view.hpp"
#include "view/class_filter.hpp"

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
  for (const auto& c : testing::ReadRows("view/view_cases.txt", 17, '|')) {
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

TEST(frmView, AClickOnAPlainText) {
  ViewSetup s;
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

// Save As asks before replacing a file (No keeps it), does nothing when cancelled and names a
// folder it cannot write in.
TEST(frmView, SaveAsAsksBeforeReplacingAndReportsWhatFails) {
  ViewSetup s;
  s.view.txtViewFile = "new text";
  const std::string path = s.folder.Write("out.hcl", "old");
  s.fake.ui.fileAnswers = {path, path, "", s.folder.File("no/such/folder/out.txt")};
  s.fake.ui.msgAnswers = {MsgResult::No, MsgResult::Yes};
  s.view.mnuFileSaveAs(s.fake.ui);
  EXPECT_EQ(ReadWholeFile(path), "old");
  s.view.mnuFileSaveAs(s.fake.ui);
  EXPECT_EQ(ReadWholeFile(path), "new text");
  const MessageRequest& asked = s.fake.ui.messages.at(1);
  EXPECT_EQ(std::tuple(asked.buttons, asked.title, asked.defaultButton), std::tuple(MsgButtons::YesNo, "File Save As", 2));
  s.view.mnuFileSaveAs(s.fake.ui);
  s.view.mnuFileSaveAs(s.fake.ui);
  EXPECT_EQ(s.fake.ui.MessageTexts(),
            (std::vector<std::string>{"File exists.  Overwrite?", "File exists.  Overwrite?",
                                      "Path/File access error: could not write " + s.folder.File("no/such/folder/out.txt") +
                                          " (No such file or directory)"}));
}

TEST(frmView, ClosingResetsButKeepsTheText) {
  ViewSetup s;
  s.view.txtViewFile = "kept";
  s.ShowMark("PH0001");
  s.view.mnuViewPhoto(s.fake.ui);
  ASSERT_EQ(s.view.PhotoFlag, 1);
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

// A 145-character index record of blanks with the PID, the given columns set, and the offset.
std::string Record(const std::map<int, std::string>& columns) {
  std::string record(145, ' ');
  record.replace(0, 6, "AB1234");
  record.replace(134, 9, "000000001");
  record.replace(143, 2, " |");
  for (const auto& [column, text] : columns) record.replace(static_cast<std::size_t>(column - 1), text.size(), text);
  return record;
}

const std::map<std::string, int> kClasses = {
    {"AllHorizontal", kAllHorizontal}, {"HorizontalFirstAndBetter", kHorizontalFirstAndBetter},
    {"AllVertical", kAllVertical},     {"VerticalFirstOnly", kVerticalFirstOnly},
    {"BoundaryMonuments", kBoundaryMonuments}, {"Landmarks", kLandmarks}, {"Cors", kCors},
    {"BaseNetwork", kBaseNetwork},     {"Airport", kAirport}, {"Tidal", kTidal}, {"GpsSuitable", kGpsSuitable},
    {"HeightMod", kHeightMod},         {"RecoveredNotPositioned", kRecoveredNotPositioned},
    {"RecoveredNotPhotographed", kRecoveredNotPhotographed}};

TEST(ClassFilter, EachClassTestsItsColumn) {
  for (const auto& cells : testing::ReadRows("view/class_filter.txt", 62, '|')) {
    std::map<int, std::string> columns;
    for (const std::string& piece : Split(cells[1], ";"))
      if (!piece.empty() && piece != "EMPTY" && piece != "SENTINEL")
        columns[std::stoi(piece)] = piece.substr(piece.find('=') + 1);
    const std::string record = cells[1] == "EMPTY"      ? std::string()
                               : cells[1] == "SENTINEL" ? std::string(134, ' ') + "000012345 |"
                                                        : Record(columns);
    EXPECT_EQ(PassesClassTest(record, kClasses.at(cells[0])), cells[2] == "1") << cells[3];
  }
}

// layouts.dat: AB1234 (CORS, special order), AB1235 (FBN, second/first), AB1236 (its record 22
// characters short, vertical posted), AB1237 (tidal, CBN, SACS, Ht Mod, third/second).
struct ViewByClassTest : ::testing::Test {
  TempFolder folder;
  FakePlatform fake{folder.Path()};
  testing::TestSession session;
  std::string dat = ReadWholeFile(testing::TestData("dataset/layouts.dat"));
  CommandTable table = BuildCommandTable();

  ViewByClassTest() {
    session.dataset.DatFile = folder.Write("layouts.dat", dat);
    session.dataset.DatFilePath = folder.Path() + "/";
    session.dataset.IndexFile = folder.File("layouts.ndx");
  }
  void LoadIndex() { LoadIndexFile(testing::TestData("dataset/layouts.ndx"), session.dataset.markIndex); }

  // Runs a class command; the user sees the list, picks the items at `picks` and presses Okay.
  std::vector<std::string> Pick(const std::string& command, std::vector<std::size_t> picks) {
    std::vector<std::string> listed;
    fake.ui.modalActions.push_back([&, picks](DialogModel& model) {
      auto& list = dynamic_cast<FrmSelectPoints&>(model);
      EXPECT_EQ(list.caption, "Select Point(s) to View");
      EXPECT_EQ(list.Tag, "Canceled");
      for (const auto& item : list.lstPoints) listed.push_back(FrmSelectPoints::PidOfItem(item));
      for (auto i : picks) list.selected.at(i) = true;
      list.cmdOkay_Click();
    });
    table.Run(command, session, fake.platform);
    return listed;
  }
  const frmView* Viewer() const {
    return fake.ui.modals.size() == 2 ? dynamic_cast<const frmView*>(fake.ui.modals[1]) : nullptr;
  }
};

TEST_F(ViewByClassTest, ClassesListTheirMarksInIndexOrder) {
  LoadIndex();
  for (const auto& c : testing::ReadRows("view/class_lists.txt", 9, '|')) {
    fake.ui.modals.clear();
    const auto pids = c[1].empty() ? std::vector<std::string>{} : Split(c[1], ";");
    EXPECT_EQ(Pick(c[0], {}), pids) << c[0];
    EXPECT_EQ(fake.ui.modals.size(), 1u) << c[0];  // nothing selected: no viewer
  }
}

TEST_F(ViewByClassTest, BuiltIndexListsItsEmptyElementBeforeTheLastRecord) {
  ASSERT_TRUE(BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, fake.platform));
  EXPECT_EQ(Pick("mnuAllHorizontal", {}), (std::vector<std::string>{"AB1234", "AB1235", "", "AB1237"}));
}

TEST_F(ViewByClassTest, SelectedDescriptionsReachTheViewerTogether) {
  LoadIndex();
  session.shell.backColor = 0x00CCFFFF;  // the main window's background
  Pick("mnuAllHorizontal", {0, 2});  // AB1234 and AB1237
  const frmView* view = Viewer();
  ASSERT_NE(view, nullptr);
  // AB1234 spans offsets 1 to 2235; AB1237 runs from 3949 to the sentinel's 4898, whose last
  // byte is not read back.
  EXPECT_EQ(view->txtViewFile, dat.substr(0, 2234) + dat.substr(3948, 949));
  EXPECT_EQ(view->Caption, "View Description(s)");
  EXPECT_EQ(view->Tag, "AB1234");
  EXPECT_EQ(view->strFileType, "dat");
  EXPECT_EQ(view->placement.state, kMaximized);
  EXPECT_EQ(view->BackColor, 0x00CCFFFFu);
}

TEST_F(ViewByClassTest, AnEmptyLastPidOrCancelEndsWithoutTheViewer) {
  LoadIndex();
  Pick("mnuAllHorizontal", {0, 3});  // AB1234 and the empty element
  EXPECT_EQ(Viewer(), nullptr);

  fake.ui.modals.clear();
  fake.ui.modalActions.push_back([](DialogModel& model) { dynamic_cast<FrmSelectPoints&>(model).cmdCancel_Click(); });
  table.Run("mnuAllHorizontal", session, fake.platform);
  EXPECT_EQ(fake.ui.modals.size(), 1u);
  EXPECT_TRUE(fake.ui.messages.empty());
}

TEST_F(ViewByClassTest, NoIndexOrMoreThanTenThousandSelectedFail) {
  table.Run("mnuAllHorizontal", session, fake.platform);
  EXPECT_TRUE(fake.ui.modals.empty());
  std::vector<std::string> elements(10001, std::string(145, ' '));
  for (auto& e : elements) e.replace(0, 8, "ZZ0001 1");
  session.dataset.markIndex.Assign(elements);
  fake.ui.modalActions.push_back([](DialogModel& model) {
    auto& list = dynamic_cast<FrmSelectPoints&>(model);
    list.selected.assign(list.lstPoints.size(), true);
    list.cmdOkay_Click();
  });
  table.Run("mnuAllHorizontal", session, fake.platform);
  EXPECT_EQ(fake.ui.MessageTexts(), (std::vector<std::string>{"Subscript out of range", "Subscript out of range"}));
}

TEST_F(ViewByClassTest, DescriptionByPid) {
  LoadIndex();
  fake.ui.inputAnswers = {"ab1234", "", "ZZ9999"};
  fake.ui.modalActions.push_back([](DialogModel&) {});
  table.Run("mnuLocByPid", session, fake.platform);
  ASSERT_EQ(fake.ui.modals.size(), 1u);
  const auto* view = dynamic_cast<const frmView*>(fake.ui.modals[0]);
  EXPECT_EQ(view->Tag, "AB1234");
  EXPECT_EQ(view->txtViewFile, dat.substr(0, 2234));
  EXPECT_EQ(view->Caption, "View Description(s)");

  table.Run("mnuLocByPid", session, fake.platform);  // empty answer: nothing
  table.Run("mnuLocByPid", session, fake.platform);
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"PID not found!"});
  EXPECT_EQ(fake.ui.modals.size(), 1u);
}

}  // namespace
}  // namespace benchlog
