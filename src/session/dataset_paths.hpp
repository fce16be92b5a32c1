#pragma once
// The files that belong to a dataset: its listings and outputs beside it (the stem with ".hcl",
// ".vcl", ".msf", ".err", "_SA6.txt"), its index in the program's folder, and the photo and
// sketch of a mark in the dataset's folder.
#include <string>
#include <string_view>

namespace benchlog {

struct Session;

// App.Path, "/", the dataset's name without folder and extension, ".ndx". Two datasets of the
// same name in different folders share one index path.
std::string IndexPathFor(std::string_view appPath, std::string_view datasetPath);

// `folder` (ending in its separator), the six characters of the PID, "ph.jpg" or "sk.jpg".
std::string PhotoPathFor(std::string_view folder, std::string_view pid);
std::string SketchPathFor(std::string_view folder, std::string_view pid);

// True when both paths name one existing file (through links and different spellings).
bool IsSameFile(const std::string& a, const std::string& b);

// The current dataset's path is kept in lower case, so that the same dataset chosen twice is
// recognised whatever the case of its letters. On a file system that tells letter cases apart
// the lower-case form is taken only where it names the same place; otherwise the path keeps
// its case, so the dataset stays reachable.
std::string LowerCaseDatasetPath(const std::string& path);

// Sets ErrFile, HclFile, VclFile, MsfFile, SA6File and IndexFile from session.dataset.DatFile.
void SetDerivedPaths(Session& session, std::string_view appPath);

}  // namespace benchlog
