// "Country.dat": the state and county lists and the FIPS look-up. The first line names the state
// code and the county looked up ("NC|WAKE"); the whole input is the file.
#include "common/runtime_failure.hpp"
#include "fuzz_input.hpp"
#include "fuzz_targets.hpp"
#include "support_files/country_file.hpp"

namespace benchlog::fuzz {

int FuzzCountry(const std::uint8_t* data, std::size_t size) {
  const std::string_view text = AsText(data, size);
  const std::string_view first = text.substr(0, text.find('\r'));
  const std::size_t bar = first.find('|');
  const std::string_view state = first.substr(0, bar);
  const std::string_view county = bar == std::string_view::npos ? std::string_view() : first.substr(bar + 1);
  try {
    (void)FipsIndex::FromText(text).LookUp(state, county);
    const std::string path = WriteScratchFile(kCountryFileName, text);
    (void)CountryStateList(path);
    (void)CountryCountyList(path, state);
  } catch (const RuntimeFailure&) {
  }
  return 0;
}

}  // namespace benchlog::fuzz
