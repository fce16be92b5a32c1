// The picture window's settings and folder list, and the map command.
#include <gtest/gtest.h>

#include "common/runtime_failure.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"
#include "plot/frm_image.hpp"
#include "plot/map_image.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;

TEST(frmImage, PlacementIsCentredByDefaultAndSavedOnlyFromTheNormalState) {
  testing::MemorySettings settings;
  frmImage image;
  image.Load(settings, 19200, 14400);  // a 1280 x 960 screen
  EXPECT_EQ(std::tuple(image.placement.top, image.placement.left, image.placement.height, image.placement.width),
            std::tuple(4200L, 5850L, 6000L, 7500L));
  image.placement = {kMaximized, 10, 20, 300, 400};
  image.cboPicViewer = {"a"};
  image.cboPicViewerVisible = true;
  image.Unload(settings);
  EXPECT_TRUE(settings.values.empty());
  EXPECT_TRUE(image.cboPicViewer.empty());
  EXPECT_FALSE(image.cboPicViewerVisible);
  image.placement = {kNormal, -15, 30, 3000, 4500};
  image.Unload(settings);
  EXPECT_FALSE(settings.Has("frmImage", "Top"));
  EXPECT_EQ(settings.GetSetting("frmImage", "Left", ""), "30");
  EXPECT_EQ(settings.GetSetting("frmImage", "Height", ""), "3000");
  EXPECT_EQ(settings.GetSetting("frmImage", "Width", ""), "4500");
}

TEST(frmImage, F10ListsFilesEndingInLowerOrUpperJpgOnly) {
  const std::pair<std::vector<const char*>, std::vector<const char*>> cases[] = {
      {{"b.jpg", "a.JPG", "c.jpeg", "d.txt", "ejpg"}, {"a.JPG", "b.jpg", "ejpg"}},
      {{"notes.txt"}, {}},
  };
  for (const auto& [files, listed] : cases) {
    testing::TempFolder folder;
    for (const char* name : files) folder.Write(name, "x");
    frmImage image;
    image.KeyF10(folder.Path());
    std::vector<std::string> expected;
    for (const char* name : listed) expected.push_back(folder.File(name));
    EXPECT_EQ(image.cboPicViewer, expected);
    EXPECT_TRUE(image.cboPicViewerVisible);
  }
  frmImage image;
  image.KeyF10("/no/such/folder");
  EXPECT_TRUE(image.cboPicViewer.empty());
}

TEST(MapImage, OpenMapKeepsThePathLoadsItAndResizesOnlyWhenThereIsRoom) {
  FakePlatform fake("/prog");
  testing::TestSession session;
  fake.pictures.sizes["/maps/a.tif"] = PictureSize{2000, 1500};
  fake.ui.fileAnswers = {"/maps/a.tif", "/maps/broken.jpg"};
  mnuOpenMap(session, fake.platform);
  ASSERT_EQ(fake.ui.fileDialogs.size(), 1u);
  EXPECT_EQ(testing::Describe(fake.ui.fileDialogs[0]), "open|Open Map File|Map Image Files (*.jpg, *.bmp, *.tif) |*.jpg;*.bmp;*.tif|");
  EXPECT_EQ(fake.ui.fileDialogs[0].fileName, "/prog\\Benchlog.ico");
  EXPECT_EQ(fake.settings.GetSetting("Settings", "LastMapFile", ""), "/maps/a.tif");
  EXPECT_TRUE(session.shell.mapLoaded);
  MapImage& map = session.forms.Get<MapImage>();
  EXPECT_EQ(std::tuple(map.view.picture2Width, map.view.HScroll1.SmallChange, map.view.VScroll1.LargeChange),
            std::tuple(2000, 10, 100));
  map.Resize(true, 800, 600, 16, 16);
  EXPECT_EQ(std::tuple(map.view.picture1Width, map.view.HScroll1.Max, map.view.VScroll1.Max), std::tuple(784, 1216, 916));
  map.Resize(true, 16, 600, 16, 16);  // no wider than the bar: left as it was
  EXPECT_EQ(map.view.picture1Width, 784);
  map.view.VScroll1_Change(100);
  EXPECT_EQ(map.view.picture2Top, -100);

  EXPECT_THROW(mnuOpenMap(session, fake.platform), RuntimeFailure);  // the reader refuses it
  EXPECT_EQ(map.view.picture, "/maps/a.tif");
}

}  // namespace
}  // namespace benchlog
