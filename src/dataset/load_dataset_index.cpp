#include "dataset/load_dataset_index.hpp"

namespace benchlog {

// Replaced by the index loader when the dataset subsystem lands.
bool LoadDatasetIndex(Session& session, Platform&) {
  session.caption = session.DatFile;
  return false;
}

}  // namespace benchlog
