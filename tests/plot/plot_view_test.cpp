// The plot window's drawing, checked on its primitive list: the layout and zoom ladder, the symbol
// of every class, the labels and the failures of the layout.
#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

#include "common/files.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "plot/plot_fixture.hpp"
#include "plot/plot_commands.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::PlotFixture;
using testing::TempFolder;

std::string Hex(std::uint32_t color) {
  char text[8];
  std::snprintf(text, sizeof text, "%06X", color);
  return text;
}

// The figures of a list without its texts, as the symbol table writes them.
std::vector<std::string> Symbols(const std::vector<PlotPrimitive>& list) {
  std::vector<std::string> out;
  for (const PlotPrimitive& p : list) {
    switch (p.kind) {
      case PrimitiveKind::Point: out.push_back("P"); break;
      case PrimitiveKind::Line: out.push_back("L:" + Hex(p.color)); break;
      case PrimitiveKind::Box: out.push_back("B:" + Hex(p.color)); break;
      case PrimitiveKind::Circle: out.push_back("C:" + Hex(p.color)); break;
      case PrimitiveKind::Text: break;
    }
  }
  return out;
}

std::string Grid30() { return ReadWholeFile(testing::TestData("plot/grid30_UTMCoords.dat")); }

TEST(PlotSymbols, EveryClassHasItsSymbolAndColour) {
  PlotFixture plot(Grid30());
  plot.Plot();
  const std::vector<std::string> actual = Symbols(plot.form.canvas.Primitives());
  std::size_t at = 0;
  for (const auto& row : testing::ReadRows("plot/grid30_symbols.txt", 30, '|')) {
    std::istringstream tokens(row[1]);
    for (std::string token; tokens >> token; ++at) {
      ASSERT_LT(at, actual.size()) << "mark " << row[0];
      EXPECT_EQ(actual[at], token) << "mark " << row[0];
    }
  }
  EXPECT_EQ(at, actual.size());
}

// Coordinates to a tenth of a millimetre, as tests/data/plot/levels.txt writes them.
std::string Number(double value) {
  char text[32];
  std::snprintf(text, sizeof text, "%.4f", value);
  std::string out = text;
  out.erase(out.find_last_not_of('0') + 1);
  if (out.back() == '.') out.pop_back();
  return out;
}

std::string Describe(const PlotPrimitive& p) {
  if (p.kind == PrimitiveKind::Text)
    return "T " + Number(p.x1) + " " + Number(p.y1) + " " + Number(p.fontSize) + " " + p.text;
  return std::string(p.kind == PrimitiveKind::Box ? "B " : p.kind == PrimitiveKind::Line ? "L " : "? ") +
         Number(p.x1) + " " + Number(p.y1) + " " + Number(p.x2) + " " + Number(p.y2);
}

TEST(PlotLevels, ViewSymbolSizeAndLabelsFollowTheLevel) {
  PlotFixture plot(Grid30());
  plot.Plot();
  for (const auto& c : testing::ReadRows("plot/levels.txt", 3, '|')) {
    SCOPED_TRACE(c[3]);
    if (c[0] != "0") plot.Plot(std::stoi(c[0]));
    const frmPlot& form = plot.form;
    const PlotScale& s = form.canvas.Scale();
    EXPECT_EQ(std::to_string(form.ZoomLevel) + "|" + std::to_string(form.TickSeconds) + "|" + form.Caption + "|" +
                  Number(s.left) + " " + Number(s.top) + " " + Number(s.right) + " " + Number(s.bottom),
              testing::JoinFields(c.begin() + 1, c.begin() + 5, "|"));
    EXPECT_EQ(form.BaseLevel, 5);
    const auto& list = form.canvas.Primitives();
    ASSERT_GE(list.size(), 8u);
    std::vector<std::string> drawn;
    for (const std::size_t i : {1, 2, 3, 5, 6, 7}) drawn.push_back(Describe(list[i]));
    EXPECT_EQ(drawn, std::vector<std::string>(c.begin() + 5, c.end()));
  }
}

// Towns widen the layout when shown: the grid and a town 10 km north of it make a 40 x 40 km box,
// which the client's proportions widen to 53,333 m, level 4. A town's name is centred by its length:
// "GREEN HOLLOW" at level 4 (s = CInt(61440 / 80) = 768) stands 11 x 384 m west and 768 m north.
TEST(PlotTowns, TownsWidenTheLayoutAndAreNamedInGreen) {
  PlotFixture plot(Grid30(), ReadWholeFile(testing::TestData("plot/grid30_UTMCities.dat")));
  plot.form.mnuPlotCities = true;
  plot.Plot();
  EXPECT_EQ(plot.form.ZoomLevel, 4);
  const auto& list = plot.form.canvas.Primitives();
  ASSERT_GE(list.size(), 4u);
  EXPECT_EQ(list[0].kind, PrimitiveKind::Point);
  EXPECT_DOUBLE_EQ(list[0].x1, 620000 - 11 * 384);
  EXPECT_DOUBLE_EQ(list[0].y1, 4015000 + 768);
  EXPECT_EQ(list[1].text, "GREEN HOLLOW");
  EXPECT_EQ(list[1].color, kColorGreen);
  EXPECT_EQ(list[1].fontSize, 10);
  EXPECT_EQ(list[3].text, "NORTH FORK");
  EXPECT_EQ(list[4].kind, PrimitiveKind::Point);  // then the marks, at the label font again
}

// The layouts that fail: the message is the failure's own text and the canvas stays empty.
TEST(PlotLayout, FailuresAreShownAndTheCanvasStaysBlank) {
  struct Case {
    const char* name;
    std::string coords;
    bool writeCoords;
    std::string message, title;
  };
  const std::string one = "0001 04000000 00600000 ONLY                           1 1   PL0001\r\n";
  const std::string twoOnALine = one + "0002 04000000 00610000 EAST                           1 1   PL0002\r\n";
  const Case cases[] = {
      {"one mark", one, true, "Division by zero", "Benchlog"},
      {"marks on one north line", twoOnALine, true, "Division by zero", "Benchlog"},
      {"number past 9999", "1E04 04000000 00600000 X\r\n", true, "Subscript out of range", "Benchlog"},
      {"no coordinates file", "", false, "File not found!", "Load Plot File"},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    PlotFixture plot(c.coords);
    if (!c.writeCoords) DeleteFileIfExists(plot.folder.File("UTMCoords.dat"));
    plot.Plot();
    ASSERT_EQ(plot.fake.ui.messages.size(), 1u);
    EXPECT_EQ(plot.fake.ui.messages[0].text, c.message);
    EXPECT_EQ(plot.fake.ui.messages[0].title, c.title);
    EXPECT_TRUE(plot.form.canvas.Primitives().empty());
  }
}

// An empty file draws nothing and fails nothing; a mark at north 0.01 or below is not drawn, but
// a north of exactly 0 is left out of the layout too.
TEST(PlotLayout, EmptyStoreAndMarksWithoutPositionDrawNothing) {
  PlotFixture empty("");
  empty.Plot();
  EXPECT_TRUE(empty.fake.ui.messages.empty());
  EXPECT_EQ(empty.form.store.FirstPoint, 10000);
  EXPECT_EQ(empty.form.store.LastPoint, 0);
  EXPECT_TRUE(empty.form.canvas.Primitives().empty());

  PlotFixture zero(Grid30() + "0031 00000000 00610000 NOWHERE                        1     PL0031\r\n");
  zero.Plot();
  EXPECT_EQ(zero.form.ZoomLevel, 5);
  std::size_t texts = 0;
  for (const auto& p : zero.form.canvas.Primitives()) texts += p.kind == PrimitiveKind::Text && p.text == "31";
  EXPECT_EQ(texts, 0u);
}

// The ticks of the level-5 view of the grid (left 599,520, top 4,030,360, right 640,480, bottom
// 3,999,640, s = 384) in zone 17, which an index around 79.5 W gives. By GeographicLib the corner
// (bottom + 2 s, right - 10 s) is 36 08 19.56 N, 79 28 52.74 W and (top, left) 36 24 47.77 N,
// 79 53 23.96 W; on multiples of 450 seconds inside them: 36 15 00 and 36 22 30 N, 79 30 00 and
// 79 52 30 W, whose grid positions are GeographicLib's too.
TEST(PlotTicks, CornersOnTheGraticuleInsideTheView) {
  PlotFixture plot(Grid30());
  plot.form.mnuPlotGridTks = true;
  testing::UseGrs80(plot.session);
  plot.session.dataset.markIndex.Assign({"TK0001 1   36 00 00.00000 079 30 00.00000 TICK"});
  plot.Plot();
  struct Corner {
    double east, north;
    const char* latitude;
    const char* longitude;
  };
  const Corner corners[] = {{600913.3119, 4026130.3437, " 36\xB0" "22'30\"", "079\xB0" "52'30\""},
                            {634553.0949, 4026587.4453, " 36\xB0" "22'30\"", "079\xB0" "30'00\""},
                            {601074.5595, 4012264.4859, " 36\xB0" "15'00\"", "079\xB0" "52'30\""},
                            {634768.1231, 4012720.9611, " 36\xB0" "15'00\"", "079\xB0" "30'00\""}};
  const auto& list = plot.form.canvas.Primitives();
  ASSERT_GE(list.size(), 32u);
  for (int i = 0; i < 4; ++i) {
    SCOPED_TRACE(i);
    const Corner& c = corners[i];
    const PlotPrimitive& across = list[4 * i + 1];
    const PlotPrimitive& up = list[4 * i + 3];
    EXPECT_NEAR(across.x1, c.east - 192, 0.01);
    EXPECT_NEAR(across.x2, c.east + 192, 0.01);
    EXPECT_NEAR(across.y1, c.north, 0.01);
    EXPECT_NEAR(up.y1, c.north - 192, 0.01);
    EXPECT_NEAR(up.y2, c.north + 192, 0.01);
    const PlotPrimitive& latitude = list[16 + 4 * i + 1];
    const PlotPrimitive& longitude = list[16 + 4 * i + 3];
    EXPECT_EQ(latitude.text, std::string(c.latitude));
    EXPECT_EQ(longitude.text, std::string(c.longitude));
    EXPECT_NEAR(longitude.y1, c.north - 30720.0 / 70, 0.01);
  }
}

// The Plot command writes the files, opens the window from its settings and draws the full view.
TEST(PlotCommand, PreparesTheFilesAndShowsTheWindow) {
  TempFolder app;
  FakePlatform fake(app.Path());
  app.Write("Towns.txt", "");
  fake.settings.SaveSetting("frmPlot", "PlotFontSize", "11");
  testing::TestSession session;
  testing::UseGrs80(session);
  session.dataset.markIndex.Assign({"PC0001 1   35 45 00.00000 077 45 00.00000 ONE",
                                    "PC0002 2   35 46 00.00000 077 40 00.00000 TWO"});
  mnuPlot(session, fake.platform);
  EXPECT_TRUE(FileExists(app.File("UTMCoords.dat")));
  ASSERT_EQ(fake.ui.modeless.size(), 1u);
  const frmPlot& form = PlotForm(session);
  EXPECT_EQ(fake.ui.modeless[0], &form);
  EXPECT_TRUE(fake.ui.messages.empty());
  EXPECT_FALSE(fake.ui.hourglass);
  EXPECT_EQ(form.store.LastPoint, 2);
  EXPECT_EQ(form.store.PtPid[2], "PC0002");
  EXPECT_GT(form.ZoomLevel, 0);
  EXPECT_EQ(form.canvas.Primitives().back().text, "PC0002");
  EXPECT_EQ(form.canvas.Primitives().back().fontSize, 11);
}

}  // namespace
}  // namespace benchlog
