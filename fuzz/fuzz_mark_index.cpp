// The index builder over any dataset text, the look-ups through the index it makes, and the same
// text taken as an index file that does not match the dataset.
#include "common/runtime_failure.hpp"
#include "dataset/build_mark_index.hpp"
#include "dataset/dataset_text.hpp"
#include "dataset/description_file.hpp"
#include "dataset/mark_lookup.hpp"
#include "fuzz_input.hpp"
#include "fuzz_platform.hpp"
#include "fuzz_targets.hpp"

namespace benchlog::fuzz {
namespace {

void LookUp(const MarkIndex& index, const std::string& dataset, const std::string& pid) {
  std::string text, horz, vert;
  (void)GetOrdersByPid(index, pid, horz, vert);
  (void)GetDescription(index, dataset, pid, text);
}

}  // namespace

int FuzzMarkIndex(const std::uint8_t* data, std::size_t size) {
  testing::FakePlatform& fake = FreshPlatform();
  const std::string_view text = AsText(data, size);
  const std::string dataset = WriteScratchFile("fuzz.dat", text);
  const std::vector<std::string_view> lines = InputLines(text);
  const std::string pid(lines.empty() ? std::string_view() : LinePid(lines.front()));
  try {
    MarkIndex index;
    if (BuildMarkIndex(dataset, ScratchFolder() + "fuzz.ndx", index, fake.platform)) LookUp(index, dataset, pid);
    LoadIndexFile(dataset, index);
    LookUp(index, dataset, pid);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}

}  // namespace benchlog::fuzz
