#include "plot/frm_image.hpp"

#include <algorithm>
#include <charconv>
#include <filesystem>

#include "common/runtime_failure.hpp"
#include "common/text.hpp"

namespace benchlog {
namespace {

long SettingNumber(const SettingsStore& settings, const char* key, long defaultValue) {
  const std::string text = settings.GetSetting(frmImage::kSection, key, std::to_string(defaultValue));
  long value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end != text.data() ? value : defaultValue;
}

}  // namespace

void frmImage::Load(const SettingsStore& settings, long screenWidth, long screenHeight) {
  placement.height = SettingNumber(settings, "Height", 6000);
  placement.width = SettingNumber(settings, "Width", 7500);
  placement.top = SettingNumber(settings, "Top", (screenHeight - placement.height) / 2);
  placement.left = SettingNumber(settings, "Left", (screenWidth - placement.width) / 2);
}

void frmImage::Unload(SettingsStore& settings) {
  if (placement.state == kNormal) {
    if (placement.top >= 0) settings.SaveSetting(kSection, "Top", std::to_string(placement.top));
    if (placement.left >= 0) settings.SaveSetting(kSection, "Left", std::to_string(placement.left));
    settings.SaveSetting(kSection, "Height", std::to_string(placement.height));
    settings.SaveSetting(kSection, "Width", std::to_string(placement.width));
  }
  cboPicViewer.clear();
  cboPicViewerVisible = false;
}

void frmImage::LoadPic(PictureReader& reader, const std::string& path) {
  view.Load(reader, path);
  view.Resize(clientWidth, clientHeight, vBarWidth, hBarHeight);
}

void frmImage::Resize(int width, int height, int vBar, int hBar) {
  clientWidth = width, clientHeight = height, vBarWidth = vBar, hBarHeight = hBar;
  view.Resize(width, height, vBar, hBar);
}

void frmImage::KeyF10(const std::string& folder) {
  cboPicViewer.clear();
  std::error_code error;
  if (std::filesystem::is_directory(folder, error)) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
      const std::string name = entry.path().filename().string();
      if (entry.is_regular_file(error) && LCase(Right(name, 3)) == "jpg") names.push_back(name);
    }
    std::sort(names.begin(), names.end());
    const std::string base = (folder.empty() || folder.back() == '/' || folder.back() == '\\') ? folder : folder + "/";
    for (const auto& name : names) cboPicViewer.push_back(base + name);
  }
  cboPicViewerVisible = true;
}

void frmImage::cboPicViewer_Click(PictureReader& reader, std::size_t index) {
  if (cboPicViewerVisible && index < cboPicViewer.size()) LoadPic(reader, cboPicViewer[index]);
}

void frmImage::mnuPrint(Printer& printer) const {
  if (!printer.ChoosePrinter("Select Printer")) throw CancelError();
  printer.PrintPicture(view.picture);
}

}  // namespace benchlog
