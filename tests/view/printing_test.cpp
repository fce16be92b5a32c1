// Printing: the page set-ups, the pages PrintArray and PrintFileName lay out, where their lines
// fall on letter and A4 paper, and the choice the viewer's Print makes.
#include <gtest/gtest.h>

#include <tuple>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "platform/page_geometry.hpp"
#include "session/frm_view.hpp"
#include "view/print_array.hpp"
#include "view/print_file_name.hpp"
#include "view/viewer_print.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;

std::vector<std::string> Numbered(const char* stem, int count) {
  std::vector<std::string> lines;
  for (int n = 1; n <= count; ++n) lines.push_back(stem + std::to_string(n));
  return lines;
}

// One expected line: page and line (both from 1), then the blanks and the text it holds.
struct LineAt {
  std::size_t page, line, blanks;
  const char* text;
};

void ExpectPages(const PrintDocument& doc, const std::vector<std::size_t>& pageLengths, const std::vector<LineAt>& lines) {
  std::vector<std::size_t> lengths;
  for (const auto& page : doc.pages) lengths.push_back(page.size());
  EXPECT_EQ(lengths, pageLengths);
  for (const auto& at : lines) {
    ASSERT_LE(at.page, doc.pages.size());
    ASSERT_LE(at.line, doc.pages[at.page - 1].size()) << "page " << at.page;
    EXPECT_EQ(doc.pages[at.page - 1][at.line - 1], Space(at.blanks) + at.text) << "page " << at.page << " line " << at.line;
  }
}

TEST(PrintArray, TheLineWidthChoosesOrientationSizeLinesAndWidth) {
  const std::tuple<int, PageOrientation, int, int, int> cases[] = {
      {1, PageOrientation::Portrait, 10, 66, 80},    {80, PageOrientation::Portrait, 10, 66, 80},
      {81, PageOrientation::Landscape, 10, 49, 120}, {120, PageOrientation::Landscape, 10, 49, 120},
      {121, PageOrientation::Landscape, 8, 62, 132}, {136, PageOrientation::Landscape, 8, 62, 132},
  };
  for (const auto& [width, orientation, size, lines, chars] : cases) {
    const PrintDocument doc = PageSetupForWidth(width);
    EXPECT_EQ(std::tuple(doc.orientation, doc.fontSize, doc.linesPerPage, doc.pageWidth, doc.fontName),
              std::tuple(orientation, size, lines, chars, std::string("Courier New")))
        << width;
  }
}

TEST(PrintArray, PagesHeadsLabelsAndBreaksFallAsWorkedOutByHand) {
  struct Case {
    const char* name;
    PrintDocument doc;
    std::vector<std::size_t> lengths;
    std::vector<LineAt> lines;
  };
  std::vector<std::string> withBlanks = Numbered("s", 42);
  withBlanks[1] = "";
  const Case cases[] = {
      // Head of 7: the title on line 4 of page 1 only, the header on line 6 of every page; 57
      // body lines reach 64 = 66 - 2, then an empty line and the label close the page.
      {"two portrait pages", LayOutArray(Numbered("L", 100), "T", "H", 5, 80), {66, 66},
       {{1, 3, 0, ""}, {1, 4, 44, "T"}, {1, 6, 5, "H"}, {1, 7, 0, ""}, {1, 8, 5, "L1"}, {1, 64, 5, "L57"},
        {1, 65, 0, ""}, {1, 66, 42, "Page 1"}, {2, 4, 0, ""}, {2, 6, 5, "H"}, {2, 8, 5, "L58"},
        {2, 50, 5, "L100"}, {2, 51, 0, ""}, {2, 64, 0, ""}, {2, 66, 42, "Page 2"}}},
      // No title, no header: a head of 5 empty lines; 59 lines fill the first page exactly, so
      // the last page is a head, padding and its label.
      {"a page filled exactly", LayOutArray(Numbered("L", 59), "", "", 0, 80), {66, 66},
       {{1, 5, 0, ""}, {1, 6, 0, "L1"}, {1, 64, 0, "L59"}, {1, 66, 37, "Page 1"}, {2, 6, 0, ""},
        {2, 66, 37, "Page 2"}}},
      // A blank first string is skipped; a form feed starts page 2 without closing page 1 and
      // without resetting the count, and the rest of its string is dropped.
      {"form feed", LayOutArray({"   ", "x", "\fdropped", "y"}, "", "", 0, 121), {6, 56},
       {{1, 6, 0, "x"}, {2, 5, 0, ""}, {2, 6, 0, "y"}, {2, 7, 0, ""}, {2, 56, 63, "Page 2"}}},
      // A title with no header: a head of 6, line 6 empty; 49 lines of 120 a page; a later empty
      // string is printed as the margin.
      {"landscape 120", LayOutArray(withBlanks, "ABCD", "", 2, 100), {49, 49},
       {{1, 4, 60, "ABCD"}, {1, 6, 0, ""}, {1, 7, 2, "s1"}, {1, 8, 2, ""}, {1, 47, 2, "s41"},
        {1, 49, 59, "Page 1"}, {2, 4, 0, ""}, {2, 7, 2, "s42"}, {2, 49, 59, "Page 2"}}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    ExpectPages(c.doc, c.lengths, c.lines);
  }
}

TEST(PrintFileName, FiftyFiveBodyLinesAPageUnderTheHeadAndTheSecondLineDropped) {
  std::vector<std::string> file = {"FIRST", "dropped"};
  for (const auto& line : Numbered("b", 55)) file.push_back(line);
  const PrintDocument doc = LayOutFile(file, "TITLE");  // half of 5 rounds to 2: 68 blanks
  EXPECT_EQ(std::tuple(doc.orientation, doc.fontSize), std::tuple(PageOrientation::Landscape, 8));
  ExpectPages(doc, {66, 11},
              {{1, 7, 0, ""}, {1, 8, 68, "TITLE"}, {1, 9, 0, ""}, {1, 10, 8, "FIRST"}, {1, 11, 0, ""},
               {1, 12, 8, "b1"}, {1, 66, 8, "b55"}, {2, 8, 68, "TITLE"}, {2, 10, 8, "FIRST"}, {2, 11, 0, ""}});
  ExpectPages(LayOutFile({"F", "x", "y"}, "ABCDEFG"), {12}, {{1, 8, 66, "ABCDEFG"}, {1, 12, 8, "y"}});  // 3.5 to 4
  try {
    LayOutFile({"only"}, "T");
    ADD_FAILURE() << "one line printed";
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, 62);
  }
}

TEST(PageGeometry, LinesSpreadOverLetterAndA4InBothOrientations) {
  const auto doc = [](PageOrientation o, int size, int lines, int width) {
    PrintDocument d;
    d.orientation = o, d.fontSize = size, d.linesPerPage = lines, d.pageWidth = width;
    return d;
  };
  const auto P = PageOrientation::Portrait, L = PageOrientation::Landscape;
  const std::tuple<const char*, PaperSize, PrintDocument, double, double, double, bool> cases[] = {
      // paper, document, page width and height, line height = (height - 36) / lines, fits
      {"letter portrait", kLetterPaper, doc(P, 10, 66, 80), 612, 792, 756.0 / 66, true},
      {"letter landscape", kLetterPaper, doc(L, 10, 49, 120), 792, 612, 576.0 / 49, true},
      {"letter landscape 8", kLetterPaper, doc(L, 8, 66, 140), 792, 612, 576.0 / 66, true},
      {"A4 portrait", kA4Paper, doc(P, 10, 66, 80), 595.2756, 841.8898, 805.8898 / 66, true},
      {"A4 landscape", kA4Paper, doc(L, 8, 62, 132), 841.8898, 595.2756, 559.2756 / 62, true},
      {"letter portrait too wide", kLetterPaper, doc(P, 10, 66, 120), 612, 792, 756.0 / 66, false},
  };
  for (const auto& [name, paper, d, width, height, lineHeight, fits] : cases) {
    const PageGeometry g = LayOutPage(paper, d);
    EXPECT_NEAR(g.pageWidth, width, 1e-9) << name;
    EXPECT_NEAR(g.pageHeight, height, 1e-9) << name;
    EXPECT_NEAR(g.lineHeight, lineHeight, 1e-9) << name;
    EXPECT_EQ(g.linesFit, fits) << name;
  }
}

TEST(ViewerPrint, TheCaptionChoosesDialogMarginWidthAndTitle) {
  struct Case {
    const char* caption;
    int photoFlag;
    bool dialog;
    PageOrientation orientation;
    std::size_t line;  // 1-based on page 1
    std::size_t blanks;
    const char* text;
  };
  const auto P = PageOrientation::Portrait, L = PageOrientation::Landscape;
  const Case cases[] = {
      {"View Positions from AB0001", 0, true, P, 6, 5, "1      xHEADER"},
      {"View Description(s)", 0, true, P, 6, 10, "HEADER"},
      {"Description for AB0002", 0, true, P, 6, 10, "HEADER"},
      {"Hcl File - c:\\d\\x.hcl", 0, false, L, 4, 54, "MARIN COUNTY CA HORIZONTAL CONTROL"},
      {"Vcl File - c:\\d\\x.vcl", 0, false, L, 4, 55, "MARIN COUNTY CA VERTICAL CONTROL"},
      {"Photo List", 0, true, P, 6, 5, "1      xHEADER"},
      {"View Photo for point AB0001", 1, true, P, 0, 0, ""},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.caption);
    testing::TestSession session;
    FakePlatform fake;
    frmView view;
    view.Caption = c.caption;
    view.PhotoFlag = c.photoFlag;
    view.imgPhoto = "pic.jpg";
    view.txtViewFile = "1      xHEADER\r\n AB0001 body";
    fake.ui.inputAnswers = {"ca", "marin"};
    PrintViewerText(view, session, fake.platform);
    EXPECT_EQ(fake.printer.dialogs, c.dialog ? std::vector<std::string>{"Select Printer"} : std::vector<std::string>{});
    if (c.photoFlag == 1) {
      EXPECT_EQ(fake.printer.pictures, std::vector<std::string>{"pic.jpg"});
      EXPECT_TRUE(fake.printer.documents.empty());
      continue;
    }
    ASSERT_EQ(fake.printer.documents.size(), 1u);
    const PrintDocument& doc = fake.printer.documents[0];
    EXPECT_EQ(doc.orientation, c.orientation);
    ExpectPages(doc, {static_cast<std::size_t>(doc.linesPerPage)}, {{1, c.line, c.blanks, c.text}});
    EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"Printing complete"});
    const bool listing = c.dialog == false;
    EXPECT_EQ(fake.ui.inputs.size(), listing ? 2u : 0u);
    if (listing) {
      EXPECT_EQ(std::tuple(session.shell.StateTxt, session.shell.County), std::tuple("CA", "MARIN"));
    }
  }
}

TEST(ViewerPrint, ACancelledDialogPrintsNothingAndAKeptStateIsNotAskedAgain) {
  testing::TestSession session;
  FakePlatform fake;
  frmView& view = ViewForm(session, fake.platform);
  SetViewerPrint(PrintViewerText);
  view.Caption = "Photo List";
  fake.printer.accept = {false};
  view.mnuPrintDesc(fake.ui);
  EXPECT_TRUE(fake.printer.documents.empty());
  EXPECT_TRUE(fake.ui.messages.empty());

  session.shell.StateTxt = "NV";
  session.shell.County = "WASHOE";
  view.Caption = "Vcl File - x";
  view.mnuPrintDesc(fake.ui);
  ASSERT_EQ(fake.printer.documents.size(), 1u);
  EXPECT_TRUE(fake.ui.inputs.empty());
  EXPECT_EQ(fake.printer.documents[0].pages[0][3], Space(54) + "WASHOE COUNTY NV VERTICAL CONTROL");
}

}  // namespace
}  // namespace benchlog
