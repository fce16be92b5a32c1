// The libFuzzer entry of one target; BENCHLOG_FUZZ_TARGET names it.
#include <cstdlib>
#include <string_view>

#include "fuzz_targets.hpp"

namespace {

int (*Body())(const std::uint8_t*, std::size_t) {
  for (const auto& target : benchlog::fuzz::FuzzTargets())
    if (target.name == std::string_view(BENCHLOG_FUZZ_TARGET)) return target.run;
  std::abort();  // a target the build names but the table lacks
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const auto body = Body();
  return body(data, size);
}
