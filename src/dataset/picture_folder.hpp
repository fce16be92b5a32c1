#pragma once
// The photo and sketch files of a dataset's folder, listed once: the index build asks for two
// names per Description, and one listing costs less than thousands of look-ups of single files.
#include <string>
#include <unordered_set>

namespace benchlog {

class PictureFolder {
 public:
  // `folder` ends in its separator (or is empty for the current folder).
  explicit PictureFolder(std::string folder);
  // Whether `folder` + `name` is a file (a link to one counts), as FileExists tells.
  bool Has(const std::string& name) const;

 private:
  std::string folder_;
  std::unordered_set<std::string> pictures_;  // names ending in "ph.jpg" or "sk.jpg"
  bool listed_ = false;
};

}  // namespace benchlog
