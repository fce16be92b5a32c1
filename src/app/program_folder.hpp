#pragma once
// App.Path: the folder the program reads its configuration, support files and help from, and
// writes its index files and work files to.
#include <string>

namespace benchlog {

// The installed data folder beside an installed executable: `exeFolder`/../share/benchlog.
std::string InstalledDataFolder(const std::string& exeFolder);

// The executable's folder when it holds "Benchlog.ini" and may be written (a build tree or a
// private copy). Otherwise `userFolder` (the per-user data folder): it is made when missing, and
// every file of the installed data folder (configuration, support files, samples, manual) that is
// missing there is copied into it; files the user's folder already has are kept, so an updated
// "Towns.txt" survives a new version. A copy that fails stops the copying without a word: the
// start-up check of the support files then names what is missing.
std::string ChooseProgramFolder(const std::string& exeFolder, const std::string& userFolder);

}  // namespace benchlog
