// The text editor as a model: find across the end of the text, replace and undo, capitals from
// typed letters, saving, the question at closing, and the Street Atlas command that opens it.
#include <gtest/gtest.h>

#include <sstream>
#include <tuple>

#include "app/command_registry.hpp"
#include "common/files.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "session/command_table.hpp"
#include "view/frm_edit.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::TempFolder;
using namespace std::string_literals;

// The user's part in dlgText or diaReplace.
void Answer(FakePlatform& fake, std::function<void(DialogModel&)> act) { fake.ui.modalActions.push_back(std::move(act)); }
void AnswerFind(FakePlatform& fake, const std::string& text) {
  Answer(fake, [text](DialogModel& m) {
    auto& ask = dynamic_cast<dlgText&>(m);
    ask.txtEntry = text;
    if (text == "Canceled") ask.CancelButton_Click();
    else ask.OKButton_Click();
  });
}

TEST(frmEdit, FindSelectsEachMatchAndGoesOnPastTheEndOfTheText) {
  const struct {
    const char* actions;   // "find:S" a new search for S, "next" F3, "cancel" a cancelled new search
    const char* selected;  // start+length after each action
  } cases[] = {
      // A match at the start is selected one character to the right; after the last match the
      // search finds nothing and selects the first characters, then starts again behind them.
      {"find:abc next next next next", "1+3 4+3 10+3 0+3 4+3"},
      {"find:zz next", "0+2 0+2"},
      {"next:c", "2+1"},  // F3 with no search string asks for one
      {"find:abc next cancel next:abc", "1+3 4+3 4+3 1+3"},  // a new search starts from the top
  };
  for (const auto& c : cases) {
    FakePlatform fake;
    frmEdit edit;
    edit.txtEdit = "ABC ABC\r\nxabc";
    std::istringstream actions(c.actions);
    std::string got;
    for (std::string action; actions >> action;) {
      if (action.rfind("find:", 0) == 0) {
        AnswerFind(fake, action.substr(5));
        edit.mnuSearchFind(fake.ui);
      } else if (action.rfind("next:", 0) == 0) {
        AnswerFind(fake, action.substr(5));
        edit.FindNext(fake.ui);
      } else if (action == "cancel") {
        AnswerFind(fake, "Canceled");
        edit.mnuSearchFind(fake.ui);
      } else {
        edit.FindNext(fake.ui);
      }
      got += (got.empty() ? "" : " ") + std::to_string(edit.SelStart) + "+" + std::to_string(edit.SelLength);
    }
    EXPECT_EQ(got, c.selected) << c.actions;
    EXPECT_TRUE(fake.ui.modalActions.empty()) << c.actions;
  }
}

TEST(frmEdit, ReplaceOnceOrAllThenUndo) {
  const struct {
    const char* find;
    const char* with;
    bool once;
    bool okay;
    const char* after;
  } cases[] = {
      {" ab ", " xy", true, true, "Ab xy AB ab"},  // trimmed, exact case, first only
      {"ab", "xy", false, true, "Ab xy AB xy"},
      {"ab", "", false, true, "Ab  AB "},
      {"  ", "xy", false, true, "Ab ab AB ab"},  // a blank find text changes nothing
      {"ab", "xy", false, false, "Ab ab AB ab"},  // cancelled
  };
  for (const auto& c : cases) {
    FakePlatform fake;
    frmEdit edit;
    edit.txtEdit = "Ab ab AB ab";
    Answer(fake, [&c](DialogModel& m) {
      auto& ask = dynamic_cast<diaReplace&>(m);
      ask.txtFind = c.find;
      ask.txtReplace = c.with;
      ask.optReplaceOnce = c.once;
      if (c.okay) ask.OKButton_Click();
      else ask.CancelButton_Click();
    });
    edit.mnuSearchReplace(fake.ui);
    EXPECT_EQ(edit.txtEdit, c.after) << c.find;
    const bool changed = edit.txtEdit != "Ab ab AB ab";
    EXPECT_EQ(edit.ChangesSaved, !changed) << c.find;
    edit.mnuUndo();
    EXPECT_EQ(edit.txtEdit, "Ab ab AB ab") << c.find;
  }
}

TEST(frmEdit, TypedLettersBecomeCapitalsAndASixthKeyLosesTheOldestUndo) {
  const std::pair<int, int> keys[] = {{'a', 'A'}, {'z', 'Z'}, {'A', 'A'}, {'1', '1'}, {0xE9, 0xE9}, {8, 8}, {'{', '{'}};
  for (const auto& [typed, passed] : keys) {
    frmEdit edit;
    EXPECT_EQ(edit.KeyPress(typed), passed) << typed;
  }

  frmEdit edit;
  edit.txtEdit = "X";
  for (char c : std::string("abcdef")) edit.txtEdit += static_cast<char>(edit.KeyPress(c));
  EXPECT_EQ(edit.txtEdit, "XABCDEF");
  for (const char* expected : {"XABCDE", "XABCD", "XABC", "XAB", "XA", "XA"}) {
    edit.mnuUndo();
    EXPECT_EQ(edit.txtEdit, expected);
  }
}

TEST(frmEdit, CutCopyAndPasteGoThroughTheUndoStore) {
  frmEdit edit;
  edit.txtEdit = "abcdef";
  edit.SelStart = 1;
  edit.SelLength = 2;
  EXPECT_EQ(edit.mnuCopy(), "bc");
  EXPECT_TRUE(edit.ChangesSaved);
  EXPECT_EQ(edit.mnuCut(), "bc");
  EXPECT_EQ(edit.txtEdit, "adef");
  EXPECT_FALSE(edit.ChangesSaved);
  edit.mnuPaste("xy\r\nz");  // pasted as it is, small letters included
  EXPECT_EQ(edit.txtEdit, "axy\r\nzdef");
  edit.mnuUndo();
  EXPECT_EQ(edit.txtEdit, "adef");
  edit.mnuUndo();
  EXPECT_EQ(edit.txtEdit, "abcdef");
}

TEST(frmEdit, SaveEndsTheFileInOneCrLfAndKeepsEveryOtherByte) {
  const std::pair<std::string, std::string> cases[] = {
      {"A\r\nB", "A\r\nB\r\n"},
      {"A\r\nB\r\n", "A\r\nB\r\n"},
      {"A\r\n\r\n", "A\r\n\r\n"},
      {"", "\r\n"},
      {"\xB0 lone\nLF\rCR \xE9\x80\x9F\0!\r\n"s, "\xB0 lone\nLF\rCR \xE9\x80\x9F\0!\r\n"s},
  };
  for (const auto& [before, after] : cases) {
    TempFolder folder;
    FakePlatform fake;
    frmEdit edit;
    const std::string file = folder.Write("sa6.txt", before);
    ASSERT_TRUE(edit.ViewFile(fake.ui, file, true));
    edit.txtEdit = "OLD";  // an undo entry that the save clears
    edit.StoreOldText();
    edit.txtEdit = before;
    edit.mnuSaveFile(fake.ui);
    EXPECT_EQ(ReadWholeFile(file), after);
    EXPECT_TRUE(edit.ChangesSaved);
    edit.mnuUndo();
    EXPECT_EQ(edit.txtEdit, before);
    EXPECT_TRUE(fake.ui.messages.empty());
  }
}

TEST(frmEdit, ClosingAsksToSaveOnlyAnUnlockedTextWithUnsavedChanges) {
  const struct {
    bool edit;
    bool savedFirst;
    bool typed;
    const char* answer;  // "" when no question comes
    const char* fileAfter;
  } cases[] = {
      {false, false, true, "", "OCO\r\n"},
      {true, false, false, "No", "OCO\r\n"},  // the load itself counts as a change
      {true, false, true, "No", "OCO\r\n"},
      {true, false, true, "Yes", "OCOX\r\n"},
      {true, true, false, "", "OCO\r\n"},
  };
  for (const auto& c : cases) {
    TempFolder folder;
    FakePlatform fake;
    frmEdit edit;
    const std::string file = folder.Write("sa6.txt", "OCO\r\n");
    ASSERT_TRUE(edit.ViewFile(fake.ui, file, c.edit));
    EXPECT_EQ(edit.Locked, !c.edit);
    EXPECT_EQ(edit.editMenusVisible, c.edit);
    if (c.savedFirst) edit.mnuSaveFile(fake.ui);
    if (c.typed) {
      edit.txtEdit = "OCOX";
      edit.TextChanged();
    }
    if (*c.answer) fake.ui.msgAnswers.push_back(std::string(c.answer) == "Yes" ? MsgResult::Yes : MsgResult::No);
    edit.placement = {kNormal, 15, 30, 4500, 6000};
    edit.CloseEditor(fake.ui, fake.settings);
    EXPECT_EQ(fake.ui.MessageTexts(), *c.answer ? std::vector<std::string>{"Save Changes?"} : std::vector<std::string>{});
    EXPECT_EQ(ReadWholeFile(file), c.fileAfter);
    EXPECT_EQ(fake.settings.GetSetting("frmEdit", "Top", "") + " " + fake.settings.GetSetting("frmEdit", "Left", "") +
                  " " + fake.settings.GetSetting("frmEdit", "Height", "") + " " +
                  fake.settings.GetSetting("frmEdit", "Width", ""),
              "15 30 4500 6000");
  }
}

TEST(frmEdit, TheStreetAtlasCommandsOpenTheFileForEditing) {
  for (const char* command : {"mnuEditSA", "mnuViewSAFile"}) {
    TempFolder folder;
    FakePlatform fake;
    testing::TestSession session;
    session.outputs.SA6File = folder.File("bay_SA6.txt");
    BuildCommandTable().Run(command, session, fake.platform);
    EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"File not found!"});
    EXPECT_TRUE(fake.ui.modals.empty());

    folder.Write("bay_SA6.txt", "Pt,Lat,Lon\r\n");
    BuildCommandTable().Run(command, session, fake.platform);
    const frmEdit& edit = session.forms.Get<frmEdit>();
    ASSERT_EQ(fake.ui.modals.size(), 1u);
    EXPECT_EQ(fake.ui.modals[0], &edit);
    EXPECT_EQ(edit.Caption, "Edit Street Atlas File - " + session.outputs.SA6File);
    EXPECT_EQ(edit.txtEdit, "Pt,Lat,Lon\r\n");
    EXPECT_FALSE(edit.Locked);
    EXPECT_EQ(edit.placement.state, kMaximized);
    EXPECT_EQ(edit.placement.height, 8340);  // the defaults, as nothing was saved yet
    EXPECT_EQ(edit.placement.width, 10650);
  }
}

// The whole text goes to the printer in Courier New 10 on portrait pages of 66 lines; the line end
// behind the last line makes no line of its own.
TEST(frmEdit, PrintPutsTheTextOnPagesOfSixtySixLines) {
  const struct {
    bool accept;
    int lines;
    const char* end;
    std::vector<std::size_t> pageLines;  // nothing printed when empty
    std::vector<std::string> messages;
  } cases[] = {
      {true, 67, "\r\n", {66, 1}, {"Printing complete"}},
      {true, 66, "", {66}, {"Printing complete"}},
      {false, 3, "\r\n", {}, {}},
  };
  for (const auto& c : cases) {
    FakePlatform fake;
    fake.printer.accept = {c.accept};
    frmEdit edit;
    for (int n = 1; n <= c.lines; ++n) edit.txtEdit += "LINE " + std::to_string(n) + (n < c.lines ? "\r\n" : c.end);
    edit.mnuPrint(fake.platform);
    EXPECT_EQ(fake.printer.dialogs, std::vector<std::string>{"Select Printer"});
    EXPECT_EQ(fake.ui.MessageTexts(), c.messages);
    if (c.pageLines.empty()) {
      EXPECT_TRUE(fake.printer.documents.empty());
      continue;
    }
    ASSERT_EQ(fake.printer.documents.size(), 1u);
    const PrintDocument& printed = fake.printer.documents[0];
    EXPECT_EQ(std::tuple(printed.fontName, printed.fontSize, printed.orientation),
              std::tuple("Courier New", 10, PageOrientation::Portrait));
    std::vector<std::size_t> pageLines;
    for (const auto& page : printed.pages) pageLines.push_back(page.size());
    EXPECT_EQ(pageLines, c.pageLines);
    EXPECT_EQ(printed.pages.back().back(), "LINE " + std::to_string(c.lines));
  }
}

}  // namespace
}  // namespace benchlog
