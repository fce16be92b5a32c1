#include "plot/map_image.hpp"

#include "common/runtime_failure.hpp"

namespace benchlog {

void ScrolledPicture::Load(PictureReader& reader, const std::string& path) {
  const PictureSize size = reader.Read(path);
  picture = path;
  scrollBarsVisible = true;
  picture2Visible = true;
  picture2Left = 0, picture2Top = 0;
  picture2Width = size.width, picture2Height = size.height;
  HScroll1.Value = 0, VScroll1.Value = 0;
  HScroll1.SmallChange = VScroll1.SmallChange = 10;
  HScroll1.LargeChange = VScroll1.LargeChange = 100;
}

void ScrolledPicture::Resize(int clientWidth, int clientHeight, int vBarWidth, int hBarHeight) {
  picture1Width = clientWidth - vBarWidth;
  picture1Height = clientHeight - hBarHeight;
  HScroll1.Max = picture2Width - picture1Width;
  VScroll1.Max = picture2Height - picture1Height;
}

void ScrolledPicture::HScroll1_Change(int value) {
  HScroll1.Value = value;
  picture2Left = -value;
}

void ScrolledPicture::VScroll1_Change(int value) {
  VScroll1.Value = value;
  picture2Top = -value;
}

void MapImage::Resize(bool mapLoaded, int clientWidth, int clientHeight, int vBarWidth, int hBarHeight) {
  if (mapLoaded && clientWidth > vBarWidth && clientHeight > hBarHeight)
    view.Resize(clientWidth, clientHeight, vBarWidth, hBarHeight);
}

std::string LastMapFile(const Platform& platform) {
  return platform.settings.GetSetting("Settings", "LastMapFile", platform.paths.appPath + "\\Benchlog.ico");
}

void ShowMap(Session& session, Platform& platform) {
  if (!platform.pictures) throw RuntimeFailure(481, "Invalid picture");
  const std::string path = LastMapFile(platform);
  platform.dlgProcessing.lblProcessing = "Loading Map Image";
  platform.dlgProcessing.lblInfo = "Please wait...";
  platform.dlgProcessing.Show();
  MapImage& map = session.forms.Get<MapImage>();
  map.view.Load(*platform.pictures, path);
  platform.dlgProcessing.Hide();
  session.shell.mapLoaded = true;
  platform.ui.ShowModeless(map);  // the main window lays it out in its client area
}

void mnuOpenMap(Session& session, Platform& platform) {
  FileDialogRequest request;
  request.filter = "Map Image Files (*.jpg, *.bmp, *.tif) |*.jpg;*.bmp;*.tif";
  request.title = "Open Map File";
  request.fileName = LastMapFile(platform);
  const std::string path = platform.ui.FileDialog(request);
  platform.settings.SaveSetting("Settings", "LastMapFile", path);
  ShowMap(session, platform);
}

}  // namespace benchlog
