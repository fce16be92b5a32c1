#include "dataset/dataset_size_limit.hpp"

#include "common/format.hpp"

namespace benchlog {
namespace {

std::string Bytes(std::uint64_t count) { return Format(static_cast<double>(count), "#,##0") + " bytes"; }

}  // namespace

bool FitsSizeLimit(std::uint64_t datasetLength) { return datasetLength < kDatasetSizeLimit; }

std::string OversizeDatasetMessage(const std::string& path, std::uint64_t datasetLength) {
  return path + " is " + Bytes(datasetLength) + " long; a dataset must stay below " + Bytes(kDatasetSizeLimit) +
         ".\r\n\r\n"
         "Its index, the exports, the listings and the plot still work, but looking up, viewing or "
         "deleting a Description that lies past the first " +
         Bytes(kDatasetSizeLimit) +
         " will fail, and no command will make the file longer.\r\n\r\n"
         "Split it into smaller datasets: make copies of the file and delete from each copy the "
         "Descriptions of the counties it should not keep (Delete Descriptions), or combine fewer files.";
}

std::string SizeLimitRefusal(std::uint64_t newLength) {
  if (FitsSizeLimit(newLength)) return "";
  return "The dataset would be " + Bytes(newLength) + " long; a dataset must stay below " + Bytes(kDatasetSizeLimit) +
         ". Nothing was written.\r\n\r\nCombine fewer files, or split the data into datasets by county.";
}

}  // namespace benchlog
