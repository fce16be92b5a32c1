#pragma once
// The first run: with no dataset chosen yet, a copy of the bundled sample dataset (its ".dat" and
// its photos and sketches) goes to a demo folder of the user's and becomes the last dataset, so a
// new user sees marks at once without a network.
#include <string>

#include "platform/settings_store.hpp"

namespace benchlog {

// `samplesFolder` holds the bundled sample; `demoFolder` is made when needed. Returns the demo
// dataset's path, or "" when a dataset was already chosen or there is no sample. Files already in
// the demo folder are left as they are, so a user's changes to the demo survive.
std::string PrepareDemoDataset(SettingsStore& settings, const std::string& samplesFolder,
                               const std::string& demoFolder);

}  // namespace benchlog
