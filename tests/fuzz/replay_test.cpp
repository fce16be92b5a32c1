// Every kept input of every fuzz target (tests/data/fuzz/<target>/: a seed, and each input that
// once crashed, hung or upset a sanitizer) runs through the target's body again. A crash ends the
// test binary; under scripts/sanitize a sanitizer report fails it.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>
#include <vector>

#include "fuzz_targets.hpp"

namespace benchlog::fuzz {
namespace {

namespace fs = std::filesystem;

std::vector<std::uint8_t> ReadBytes(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

TEST(FuzzReplay, EveryKeptInputOfEveryTargetRunsThrough) {
  std::set<std::string> folders;
  for (const auto& entry : fs::directory_iterator(BENCHLOG_FUZZ_INPUTS)) folders.insert(entry.path().filename().string());
  for (const FuzzTarget& target : FuzzTargets()) {
    const fs::path folder = fs::path(BENCHLOG_FUZZ_INPUTS) / target.name;
    folders.erase(std::string(target.name));
    std::size_t replayed = 0;
    for (const auto& entry : fs::directory_iterator(folder)) {
      const std::vector<std::uint8_t> input = ReadBytes(entry.path());
      EXPECT_EQ(target.run(input.data(), input.size()), 0) << entry.path();
      ++replayed;
    }
    EXPECT_GT(replayed, 0u) << "no kept input for " << target.name;
  }
  EXPECT_TRUE(folders.empty()) << "inputs kept for a target that does not exist: " << (folders.empty() ? "" : *folders.begin());
}

}  // namespace
}  // namespace benchlog::fuzz
