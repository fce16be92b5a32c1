// The service's Descriptions as a replacement takes them: the page around them filtered out by
// line, the kept lines written behind a dataset, squeezed and indexed.
#include "common/runtime_failure.hpp"
#include "common/text.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/compress_dataset.hpp"
#include "fuzz_input.hpp"
#include "fuzz_platform.hpp"
#include "fuzz_targets.hpp"
#include "web/replacement_files.hpp"
#include "web/response_lines.hpp"

namespace benchlog::fuzz {

int FuzzServiceAnswer(const std::uint8_t* data, std::size_t size) {
  testing::FakePlatform& fake = FreshPlatform();
  std::vector<std::string_view> kept;
  for (const std::string_view line : SplitViews(AsText(data, size), "\n"))
    if (IsDescriptionLine(line)) kept.push_back(line);
  const ReplacementPaths paths =
      ReplacementPathsFor(ScratchFolder() + "answer.dat", ScratchFolder() + "answer.ndx");
  try {
    WriteWorkDataset(paths, {}, kept, {});
    if (CompressDataset(paths.workDataset, fake.platform).empty()) {
      MarkIndex index;
      BuildMarkIndex(paths.workDataset, paths.workIndex, index, fake.platform);
    }
  } catch (const RuntimeFailure&) {
  }
  RemoveWorkFiles(paths);
  return 0;
}

}  // namespace benchlog::fuzz
