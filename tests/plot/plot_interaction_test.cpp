// The plot window's interaction on its model: the nearest-mark pick, the band zoom and the click to
// centre, the zoom steps, measuring, Find, the popup menu and the deletion of a mark.
#include <gtest/gtest.h>

#include "common/files.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/description_file.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "plot/plot_fixture.hpp"
#include "plot/nearest_mark.hpp"
#include "plot/plot_files.hpp"
#include "session/dataset_paths.hpp"
#include "session/frm_view.hpp"

namespace benchlog {
namespace {

using testing::TempFolder;
using Points = std::vector<std::int16_t>;

// Marks 1 to 4 of a store: 2 and 3 share a spot 1000 m east of 1; 4 lies 2000 m north of their middle.
PlotStore FourMarks() {
  PlotStore store;
  store.FirstPoint = 1, store.LastPoint = 4;
  const double spots[][2] = {{0, 0}, {4000000, 600000}, {4000000, 601000}, {4000000, 601000}, {4002000, 600500}};
  for (int n = 1; n <= 4; ++n) store.PtNorth[n] = spots[n][0], store.PtEast[n] = spots[n][1];
  return store;
}

// Marks at the top of the store's range, 9998 and 9999, 10 m apart.
PlotStore TopMarks() {
  PlotStore store;
  store.FirstPoint = 9998, store.LastPoint = 9999;
  store.PtNorth[9998] = store.PtNorth[9999] = 4000000;
  store.PtEast[9998] = 600000, store.PtEast[9999] = 600010;
  return store;
}

TEST(FindNearestPoint, TakesTheFirstOfTheNearestWithinThreeKilometres) {
  struct Case {
    const char* what;
    PlotStore store;
    double x, y;
    std::int16_t start, point;
    Points samePlace;
  };
  const Case cases[] = {
      {"on mark 1", FourMarks(), 600000, 4000000, 0, 1, {1}},
      {"halfway between 1 and 2: the first wins", FourMarks(), 600500, 4000000, 0, 1, {1}},
      {"on the shared spot: 2, with 3 beside it", FourMarks(), 601000, 4000000, 4, 2, {2, 3}},
      {"near 4", FourMarks(), 600400, 4001500, 0, 4, {4}},
      {"exactly 3000 m away keeps the last pick", FourMarks(), 600000, 3997000, 4, 4, {4}},
      {"just inside 3000 m", FourMarks(), 600000, 3997001, 4, 1, {1}},
      {"nothing near, nothing picked before", FourMarks(), 700000, 4000000, 0, 0, {}},
      {"the store's last number", TopMarks(), 600009, 4000000, 0, 9999, {9999}},
      {"an empty store", PlotStore{}, 600000, 4000000, 0, 0, {}},
  };
  for (const Case& c : cases) {
    std::int16_t point = c.start;
    Points samePlace{7};
    FindNearestPoint(c.store, c.x, c.y, point, samePlace);
    EXPECT_EQ(point, c.point) << c.what;
    EXPECT_EQ(samePlace, c.samePlace) << c.what;
  }
}

TEST(MeasureText, MetresAndFeetBelow500ElseKilometresAndMiles) {
  const std::pair<double, const char*> cases[] = {
      {1.4, "1 Meters\r\n5 Feet"},                 // 4.59 ft
      {499, "499 Meters\r\n1637 Feet"},            // 1637.14 ft
      {500, "0.5 Km\r\n0.3 Miles"},                // 0.311 mi
      {8000, "8.0 Km\r\n5.0 Miles"},               // 4.971 mi
      {12345, "12.3 Km\r\n7.7 Miles"},             // 7.671 mi
  };
  for (const auto& [distance, text] : cases) EXPECT_EQ(MeasureText(distance), text) << distance;
}

// The 40 x 30 km grid of 30 marks (6 a row, 8 km apart east, 7.5 km north; mark 1 at east 600,000,
// north 4,000,000, PID PL0001, "STATION 01"), laid out in an 800 x 600 client at level 5 around
// (620,000, 4,015,000).
struct GridPlot : testing::PlotFixture {
  GridPlot() : PlotFixture(ReadWholeFile(testing::TestData("plot/grid30_UTMCoords.dat"))) {
    form.onBeep = [this] { ++beeps; };
    form.PlotAll();
  }
  void Drag(float x1, float y1, float x2, float y2) {
    form.MouseDown(MouseButton::Left, x1, y1);
    form.MouseMove(x2, y2);
    form.MouseUp(MouseButton::Left, x2, y2);
  }
  int beeps = 0;
};

TEST(PlotMouse, ABandZoomsToTheLevelOfItsWidthAndAClickCentres) {
  struct Case {
    const char* what;
    float x1, y1, x2, y2;
    std::int16_t zoomLevel, baseLevel;
    float east, north;
    int beeps;
  };
  const Case cases[] = {
      // 4000 x 3000 fits the client as it is: 2,560 up to 5,120 is level 8.
      {"4 x 3 km", 610000, 4010000, 614000, 4013000, 8, 5, 612000, 4011500, 0},
      {"drawn from the other corner", 614000, 4013000, 610000, 4010000, 8, 5, 612000, 4011500, 0},
      // 1000 x 3000 is widened to 4000 by the client's proportions.
      {"tall and narrow", 610000, 4010000, 611000, 4013000, 8, 5, 610500, 4011500, 0},
      {"5120 wide lies on a limit: no level", 610000, 4010000, 615120, 4010100, 5, 5, 612560, 4010050, 0},
      {"wider than level 1 only lowers the base level", 500000, 3900000, 900000, 4200000, 5, 1, 700000, 4050000, 0},
      {"no change in Y only beeps", 610000, 4010000, 614000, 4010000, 5, 5, 620000, 4015000, 1},
      {"no change in X centres on the release", 610000, 4010000, 610000, 4012000, 5, 5, 610000, 4012000, 0},
  };
  for (const Case& c : cases) {
    GridPlot plot;
    plot.Drag(c.x1, c.y1, c.x2, c.y2);
    const frmPlot& form = plot.form;
    EXPECT_EQ(std::tuple(form.ZoomLevel, form.BaseLevel, form.CenterEast, form.CenterNorth, plot.beeps),
              std::tuple(c.zoomLevel, c.baseLevel, c.east, c.north, c.beeps))
        << c.what;
    EXPECT_FALSE(form.BandActive) << c.what;
    EXPECT_TRUE(form.Overlay().empty()) << c.what;
  }
}

TEST(PlotMouse, TheBandAndTheCaptionFollowTheMouseWithoutTouchingTheDrawing) {
  GridPlot plot;
  const std::vector<PlotPrimitive> drawn = plot.form.canvas.Primitives();
  plot.form.MouseDown(MouseButton::Left, 610000, 4010000);
  plot.form.MouseMove(612345.4f, 4011000);
  EXPECT_EQ(plot.form.Caption, "UTM  North=4,011,000  East=612,345  Zoom factor= 5");
  const std::vector<PlotPrimitive> overlay = plot.form.Overlay();
  ASSERT_EQ(overlay.size(), 1u);
  EXPECT_EQ(overlay[0].kind, PrimitiveKind::Box);
  EXPECT_EQ(overlay[0].mode, DrawMode::Invert);
  EXPECT_EQ(std::tuple(overlay[0].x1, overlay[0].y1, overlay[0].y2), std::tuple(610000.0, 4010000.0, 4011000.0));
  EXPECT_NEAR(overlay[0].x2, 612345.4, 0.05);
  EXPECT_EQ(plot.form.canvas.Primitives(), drawn);
}

TEST(PlotMouse, ZoomStepsStayBetweenTheBaseLevelAndFifteen) {
  GridPlot plot;
  plot.form.mnuZoomOut();
  EXPECT_EQ(plot.form.ZoomLevel, 5);
  for (int i = 0; i < 12; ++i) plot.form.mnuZoomIn();
  EXPECT_EQ(plot.form.ZoomLevel, 15);
  plot.form.mnuZoomOut();
  EXPECT_EQ(plot.form.ZoomLevel, 14);
  EXPECT_EQ(std::pair(plot.form.CenterEast, plot.form.CenterNorth), std::pair(620000.0f, 4015000.0f));
}

TEST(PlotMouse, MeasuringFromAMarkToAnother) {
  GridPlot plot;
  frmPlot& form = plot.form;
  form.MouseDown(MouseButton::Right, 600100, 4000100);  // mark 1
  form.mnuInverse();
  EXPECT_EQ(std::tuple(form.InverseMode, form.crossPointer, form.FromPoint, form.PickedPoint), std::tuple(true, true, 1, 1));
  form.MouseMove(605000, 4001000);
  ASSERT_EQ(form.Overlay().size(), 1u);
  EXPECT_EQ(std::tuple(form.Overlay()[0].x1, form.Overlay()[0].y1, form.Overlay()[0].x2, form.Overlay()[0].y2),
            std::tuple(600000.0, 4000000.0, 605000.0, 4001000.0));
  form.MouseDown(MouseButton::Left, 600200, 3999900);  // mark 1 again: the measurement goes on
  EXPECT_TRUE(form.InverseMode);
  EXPECT_TRUE(plot.fake.ui.messages.empty());
  std::vector<PlotPrimitive> shownWithTheDistance;
  form.onOverlayChanged = [&] { shownWithTheDistance = form.Overlay(); };
  form.MouseDown(MouseButton::Left, 607500, 4000400);  // mark 2, 8000 m east
  EXPECT_EQ(plot.fake.ui.MessageTexts(), std::vector<std::string>{"8.0 Km\r\n5.0 Miles"});
  ASSERT_EQ(shownWithTheDistance.size(), 1u);
  EXPECT_EQ(std::tuple(shownWithTheDistance[0].x1, shownWithTheDistance[0].x2, shownWithTheDistance[0].y2),
            std::tuple(600000.0, 608000.0, 4000000.0));
  EXPECT_EQ(std::tuple(form.InverseMode, form.crossPointer, form.FromPoint, form.ToPoint, form.LineX),
            std::tuple(false, false, 0, 0, 0.0f));
  EXPECT_TRUE(form.Overlay().empty());

  // A right click ends a running measurement; its rubber line stays until the next drawing.
  form.mnuInverse();
  form.MouseMove(601000, 4001000);
  form.MouseDown(MouseButton::Right, 608000, 4000000);
  EXPECT_FALSE(form.InverseMode);
  EXPECT_TRUE(form.crossPointer);
  EXPECT_EQ(form.Overlay().size(), 1u);
  form.mnuZoomIn();
  EXPECT_TRUE(form.Overlay().empty());
}

TEST(PlotFind, ByNumberPidOrWholeDesignation) {
  const std::pair<const char*, int> cases[] = {
      {"12", 12}, {"12 MAIN", 12}, {"PL0007", 7}, {"pl0007", 7}, {"STATION 03", 3}, {"station 03", 3},
      {"STATION", 0}, {"99", 0}, {"10000", 0}, {"", 0}, {"0", 0},
  };
  for (const auto& [input, point] : cases) {
    GridPlot plot;
    plot.fake.ui.inputAnswers.push_back(input);
    plot.form.mnuFind();
    EXPECT_EQ(plot.fake.ui.inputs.at(0), "Enter point number, PID, or designation:|Find Point|");
    if (point == 0) {
      ASSERT_EQ(plot.fake.ui.messages.size(), 1u) << input;
      EXPECT_EQ(plot.fake.ui.messages[0].text + "|" + plot.fake.ui.messages[0].title, "Point not found!|Find Point");
      EXPECT_EQ(plot.form.ZoomLevel, 5) << input;
      continue;
    }
    const float east = 600000.0f + 8000.0f * static_cast<float>((point - 1) % 6);
    const float north = 4000000.0f + 7500.0f * static_cast<float>((point - 1) / 6);
    EXPECT_EQ(std::tuple(plot.form.CenterEast, plot.form.CenterNorth, plot.form.ZoomLevel), std::tuple(east, north, 8))
        << input;
    EXPECT_TRUE(plot.fake.ui.messages.empty()) << input;
  }
}

TEST(PlotPopup, NothingPickedMeansNothingDoneAndAFarClickKeepsTheLastPick) {
  GridPlot plot;
  plot.form.MouseDown(MouseButton::Right, 500000, 3000000);
  EXPECT_EQ(plot.form.PickedPoint, 0);
  plot.form.mnuPhoto();
  plot.form.mnuDSht();
  plot.form.mnuDelete();
  EXPECT_TRUE(plot.fake.ui.messages.empty());
  EXPECT_TRUE(plot.fake.ui.modals.empty());
  plot.form.MouseDown(MouseButton::Right, 632100, 4007400);
  EXPECT_EQ(plot.form.PickedPoint, 11);
  plot.form.MouseDown(MouseButton::Right, 500000, 3000000);
  EXPECT_EQ(plot.form.PickedPoint, 11);
  plot.form.mnuPhoto();  // no PL0011ph.jpg nor "STATION 11ph.jpg" in the dataset's folder
  EXPECT_EQ(plot.fake.ui.MessageTexts(), std::vector<std::string>{"Picture file name not found."});
  EXPECT_EQ(plot.fake.ui.messages.at(0).title, "View Picture");
}

// pictures.dat: EF0001 to EF0003 at offsets 1, 387 and 775 of its 1161 bytes, about 1.8 km apart,
// plotted as marks 1 to 3.
struct DatasetPlot : testing::PlotFixture {
  DatasetPlot() : PlotFixture("") {
    dat = ReadWholeFile(testing::TestData("dataset/pictures.dat"));
    session.dataset.DatFile = folder.Write("pictures.dat", dat);
    session.dataset.DatFilePath = folder.Path() + "/";
    SetDerivedPaths(session, folder.Path());
    fake.platform.paths.supportPath = testing::SourceSupport();
    testing::UseGrs80(session);
    EXPECT_TRUE(BuildMarkIndex(session.dataset.DatFile, session.dataset.IndexFile, session.dataset.markIndex, fake.platform));
    PreparePlotFiles(session.dataset.markIndex, testing::kGrs80, folder.Path(), fake.platform.paths.supportPath);
    form.PlotAll();
  }
  void RightClickOn(int point) {
    form.MouseDown(MouseButton::Right, static_cast<float>(form.store.PtEast[point]), static_cast<float>(form.store.PtNorth[point]));
  }
  std::string dat;
};

TEST(PlotPopup, DeleteTakesTheMarkOutOfTheDatasetAndKeepsTheView) {
  DatasetPlot plot;
  ASSERT_EQ(plot.form.store.LastPoint, 3);
  ASSERT_EQ(plot.form.store.PtPid[2], "EF0002");
  plot.RightClickOn(2);
  plot.form.mnuZoomIn();
  const auto view = std::tuple(plot.form.CenterEast, plot.form.CenterNorth, plot.form.ZoomLevel);
  plot.fake.ui.msgAnswers = {MsgResult::No, MsgResult::Yes};
  plot.form.mnuDelete();
  EXPECT_EQ(ReadWholeFile(plot.session.dataset.DatFile), plot.dat);
  plot.form.mnuDelete();

  const std::string asked = "Warning-this will delete this point from the .dat file.\r\nContinue?";
  EXPECT_EQ(plot.fake.ui.MessageTexts(), (std::vector<std::string>{asked, asked, "Description deleted!"}));
  for (const auto& m : plot.fake.ui.messages) EXPECT_EQ(m.title, "Delete Description");
  EXPECT_EQ(ReadWholeFile(plot.session.dataset.DatFile), plot.dat.substr(0, 386) + plot.dat.substr(774));
  std::string text;
  EXPECT_EQ(GetDescription(plot.session.dataset.markIndex, plot.session.dataset.DatFile, "EF0002", text), "PID not found!");
  EXPECT_EQ(GetDescription(plot.session.dataset.markIndex, plot.session.dataset.DatFile, "EF0003", text), "");
  EXPECT_EQ(text, plot.dat.substr(774, 386));  // the last Description reads one byte short: no final LF
  // The marks after it are numbered anew, and the view stays where it was.
  EXPECT_EQ(plot.form.store.LastPoint, 2);
  EXPECT_EQ(plot.form.store.PtPid[2], "EF0003");
  EXPECT_EQ(std::tuple(plot.form.CenterEast, plot.form.CenterNorth, plot.form.ZoomLevel), view);
  EXPECT_FALSE(plot.fake.progress.Visible());
}

TEST(PlotPopup, DSheetShowsTheDescriptionsOfTheMarksOnTheSpot) {
  DatasetPlot plot;
  plot.RightClickOn(3);
  std::string shown;
  plot.fake.ui.modalActions.push_back([&](DialogModel& model) { shown = dynamic_cast<frmView&>(model).txtViewFile; });
  plot.form.mnuDSht();
  EXPECT_EQ(shown, plot.dat.substr(774, 386));  // the last Description reads one byte short: no final LF
}

TEST(PlotPopup, PhotoTakesThePidsFileBeforeTheDesignations) {
  struct Case {
    std::vector<const char*> files;
    const char* shown;
  };
  const Case cases[] = {
      {{"EF0001ph.jpg", "MESAph.jpg"}, "EF0001ph.jpg"},
      {{"MESAph.jpg", "EF0001sk.jpg"}, "MESAph.jpg"},
  };
  for (const Case& c : cases) {
    DatasetPlot plot;
    const TempFolder photos;
    plot.fake.settings.SaveSetting("Settings", "PhotoDir", photos.Path() + "/");
    for (const char* name : c.files) plot.fake.pictures.sizes[photos.Write(name, "jpg")] = {4, 3};
    plot.fake.ui.modalActions.push_back([](DialogModel&) {});
    plot.RightClickOn(1);
    plot.form.mnuPhoto();
    EXPECT_EQ(plot.fake.pictures.read, std::vector<std::string>{photos.File(c.shown)});
    EXPECT_TRUE(plot.fake.ui.messages.empty());
  }
}

}  // namespace
}  // namespace benchlog
