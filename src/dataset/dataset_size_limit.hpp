#pragma once
// The largest dataset the index can serve. A record's look-up reads the next record's offset
// without its leading digit (the records are joined by one blank), so every offset, the
// sentinel's dataset length among them, must stay below 100,000,000: a longer dataset still
// opens, indexes and exports, but the look-up of a mark that lies past the limit reads a wrong
// length and fails. Every command that makes or grows a dataset asks here first.
#include <cstdint>
#include <string>

namespace benchlog {

inline constexpr std::uint64_t kDatasetSizeLimit = 100'000'000;  // bytes; a dataset must be shorter

bool FitsSizeLimit(std::uint64_t datasetLength);

// The message shown when a dataset of `datasetLength` bytes at `path` is opened past the limit:
// what still works, what will not, and how to split it.
std::string OversizeDatasetMessage(const std::string& path, std::uint64_t datasetLength);

// The refusal of a command that would make a dataset `newLength` bytes long; "" when it fits.
std::string SizeLimitRefusal(std::uint64_t newLength);

}  // namespace benchlog
