#include "export/export_output.hpp"

#include "common/files.hpp"

namespace benchlog {

bool PrepareOutputPath(const std::string& path, std::string& ErrMsg) {
  if (!FileExists(path)) return true;
  if (IsReadOnly(path)) {
    ErrMsg = path + " exists and is read-only!";
    return false;
  }
  return true;
}

}  // namespace benchlog
