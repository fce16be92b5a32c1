#include "app/recent_files.hpp"

#include "app/menu_tree.hpp"
#include "common/text.hpp"

namespace benchlog {

void LoadMRUList(Session& session, const SettingsStore& settings) {
  session.shell.MRUList.clear();
  for (int n = 1; n <= kMaxRecentFiles; ++n) {
    std::string name = settings.GetSetting("MRUList", "Name" + std::to_string(n), "");
    if (!name.empty()) session.shell.MRUList.push_back(std::move(name));
  }
  RefreshMRUMenu(session);
}

void AddToMRUList(Session& session, SettingsStore& settings, const std::string& path) {
  auto& list = session.shell.MRUList;
  const std::string lower = LCase(path);
  for (auto entry = list.begin(); entry != list.end(); ++entry) {
    if (LCase(*entry) == lower) {
      list.erase(entry);
      break;
    }
  }
  list.insert(list.begin(), path);
  if (list.size() > static_cast<std::size_t>(kMaxRecentFiles)) list.resize(kMaxRecentFiles);
  for (std::size_t i = 0; i < list.size(); ++i) settings.SaveSetting("MRUList", "Name" + std::to_string(i + 1), list[i]);
  RefreshMRUMenu(session);
}

void RefreshMRUMenu(Session& session) {
  const auto count = static_cast<int>(session.shell.MRUList.size());
  for (int n = 1; n <= kMaxRecentFiles; ++n) {
    auto& item = session.menu[MruItemName(n)];
    item.visible = n <= count;
    if (n <= count) item.caption = "&" + std::to_string(n) + " " + session.shell.MRUList[static_cast<std::size_t>(n - 1)];
  }
  session.menu["mnuFileMRUSep"].visible = count > 0;
}

}  // namespace benchlog
