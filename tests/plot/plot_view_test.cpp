// The plot window's drawing, checked on its primitive list: the layout and zoom ladder, the symbol
// of every class, the labels and the failures of the layout.
#include <gtest/gtest.h>

#include <cstdio>
#include <sstream>

#include "common/files.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_rows.hpp"
#include "plot/frm_plot.hpp"
#include "plot/plot_commands.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;
using testing::TempFolder;

// A plot window over the files `coords` and `cities` in a fresh program folder, with an 800 x 600
// client, ticks off and the labels numbers and designations.
struct PlotFixture {
  explicit PlotFixture(const std::string& coords, const std::string& cities = "") : fake(folder.Path()) {
    folder.Write("UTMCoords.dat", coords);
    folder.Write("UTMCities.dat", cities);
    form.Load(fake.settings);
    form.clientWidth = 800;
    form.clientHeight = 600;
    form.mnuPlotGridTks = false;
    form.mnuPltPID = false;
  }
  void Plot(int level = 0) {
    form.ZoomLevel = static_cast<std::int16_t>(level);
    form.Plot(session, fake.platform);
  }
  TempFolder folder;
  FakePlatform fake;
  testing::TestSession session;
  frmPlot form;
};

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

struct Line {
  double x1, y1, x2, y2;
};

// The view at three levels of the ladder, and the first mark (class "A" over vertical "1", at
// north 4,000,000 and east 600,000) drawn at each: the fresh layout of the 40 x 30 km grid in an
// 800 x 600 client is level 5 around (620,000, 4,015,000).
struct LevelCase {
  int level;  // 0: the fresh layout
  std::int16_t zoomLevel, tickSeconds;
  const char* caption;
  PlotScale scale;
  Line triangle[3];
  Line box;
  double labelX, numberY;
};

const LevelCase kLevels[] = {
    {0, 5, 450, "Viewing area: 31 X 41 Km", {599520, 4030360, 640480, 3999640},
     {{599808, 3999872, 600192, 3999872}, {600192, 3999872, 600000, 4000256}, {600000, 4000256, 599808, 3999872}},
     {600192, 4000192, 599808, 3999808}, 600256, 4000614.4},
    {10, 10, 15, "Viewing area:  960 X  1280 Meters", {619360, 4015480, 620640, 4014520},
     {{599994, 3999996, 600006, 3999996}, {600006, 3999996, 600000, 4000008}, {600000, 4000008, 599994, 3999996}},
     {600006, 4000006, 599994, 3999994}, 600008, 4000019.2},
    {14, 14, 2, "Viewing area:  60 X  80 Meters", {619960, 4015030, 620040, 4014970},
     {{599997, 3999998, 600003, 3999998}, {600003, 3999998, 600000, 4000004}, {600000, 4000004, 599997, 3999998}},
     {600003, 4000003, 599997, 3999997}, 600004, 4000001.2},
};

TEST(PlotLevels, ViewSymbolSizeAndLabelsFollowTheLevel) {
  PlotFixture plot(Grid30());
  plot.Plot();
  for (const LevelCase& c : kLevels) {
    SCOPED_TRACE(c.caption);
    if (c.level != 0) plot.Plot(c.level);
    const frmPlot& form = plot.form;
    EXPECT_EQ(form.ZoomLevel, c.zoomLevel);
    EXPECT_EQ(form.BaseLevel, 5);
    EXPECT_EQ(form.TickSeconds, c.tickSeconds);
    EXPECT_EQ(form.Caption, c.caption);
    const PlotScale& scale = form.canvas.Scale();
    EXPECT_DOUBLE_EQ(scale.left, c.scale.left);
    EXPECT_DOUBLE_EQ(scale.top, c.scale.top);
    EXPECT_DOUBLE_EQ(scale.right, c.scale.right);
    EXPECT_DOUBLE_EQ(scale.bottom, c.scale.bottom);
    const auto& list = form.canvas.Primitives();
    ASSERT_GE(list.size(), 8u);
    for (int i = 0; i < 3; ++i) {
      const PlotPrimitive& line = list[1 + i];
      EXPECT_EQ(line.kind, PrimitiveKind::Line);
      EXPECT_DOUBLE_EQ(line.x1, c.triangle[i].x1);
      EXPECT_DOUBLE_EQ(line.y1, c.triangle[i].y1);
      EXPECT_DOUBLE_EQ(line.x2, c.triangle[i].x2);
      EXPECT_DOUBLE_EQ(line.y2, c.triangle[i].y2);
    }
    const PlotPrimitive& box = list[5];
    EXPECT_EQ(box.kind, PrimitiveKind::Box);
    EXPECT_DOUBLE_EQ(box.x1, c.box.x1);
    EXPECT_DOUBLE_EQ(box.y1, c.box.y1);
    EXPECT_DOUBLE_EQ(box.x2, c.box.x2);
    EXPECT_DOUBLE_EQ(box.y2, c.box.y2);
    const PlotPrimitive& number = list[6];
    const PlotPrimitive& designation = list[7];
    EXPECT_EQ(number.text, "1");
    EXPECT_DOUBLE_EQ(number.x1, c.labelX);
    EXPECT_NEAR(number.y1, c.numberY, 1e-6);
    EXPECT_EQ(designation.text, "STATION 01");
    EXPECT_DOUBLE_EQ(designation.x1, c.labelX);
    EXPECT_DOUBLE_EQ(designation.y1, 4000000);
    EXPECT_EQ(number.fontSize, 8);
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
  plot.session.config.ellipsoidA = 6378137;
  plot.session.config.ellipsoidE2 = 0.00669438002290;
  plot.session.config.ellipsoidEp2 = 0.00669438002290 / (1 - 0.00669438002290);
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
  session.config.ellipsoidA = 6378137;
  session.config.ellipsoidE2 = 0.00669438002290;
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

TEST(PlotOptions, PointNumbersAndPidsTurnEachOtherOff) {
  FakePlatform fake;
  frmPlot form;
  form.Load(fake.settings);
  EXPECT_TRUE(form.mnuPltNum && form.mnuPltPID && form.mnuPltDes && form.mnuPlotGridTks && !form.mnuPlotCities);
  form.TogglePids(fake.settings);  // off
  form.TogglePointNumbers(fake.settings);  // off
  form.TogglePids(fake.settings);  // on again: numbers stay off
  EXPECT_TRUE(form.mnuPltPID);
  EXPECT_FALSE(form.mnuPltNum);
  form.TogglePointNumbers(fake.settings);  // on: PIDs off, but their setting stays "True"
  EXPECT_FALSE(form.mnuPltPID);
  EXPECT_EQ(fake.settings.GetSetting("frmPlot", "PlotPid", ""), "True");
  EXPECT_EQ(fake.settings.GetSetting("frmPlot", "PlotNum", ""), "True");
  form.ToggleCities(fake.settings);
  EXPECT_EQ(fake.settings.GetSetting("frmPlot", "PlotCities", ""), "True");
}

}  // namespace
}  // namespace benchlog
