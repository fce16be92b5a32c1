#pragma once
// The recent-files list: up to 8 dataset paths, most recent first, kept in the settings section
// "MRUList" as "Name1" to "Name8" and shown as entries of the File menu.
#include <string>

#include "session/session.hpp"
#include "platform/settings_store.hpp"

namespace benchlog {

inline constexpr int kMaxRecentFiles = 8;

// Reads "Name1".."Name8" and keeps the non-empty ones in order, then refreshes the menu.
void LoadMRUList(Session& session, const SettingsStore& settings);
// Moves or adds `path` to the top (an entry equal in lower case is replaced), drops a ninth
// entry, writes the list back and refreshes the menu. A shorter list leaves higher keys in place.
void AddToMRUList(Session& session, SettingsStore& settings, const std::string& path);
// Entry n gets the caption "&n path" and is shown for n up to the list's length; the others are
// hidden; the separator shows exactly when the list is not empty.
void RefreshMRUMenu(Session& session);

}  // namespace benchlog
