#include <gtest/gtest.h>

#include <map>
#include <set>

#include "common/runtime_failure.hpp"
#include "fakes/test_paths.hpp"
#include "support_files/country_file.hpp"

namespace benchlog {
namespace {

std::string Fixture() { return testing::TestData("support/") + "country_small.dat"; }
std::string Committed() { return testing::SourceSupport() + kCountryFileName; }

TEST(CountryFile, StateListTakesEveryStateLineWhateverItsCountry) {
  EXPECT_EQ(CountryStateList(Fixture()),
            (std::vector<std::string>{"ON ONTARIO", "NC NORTH CAROLINA", "VA VIRGINIA", "OR OREGON"}));
}

TEST(CountryFile, CountyListRunsFromTheStateToTheNextStateOrCountry) {
  struct Case { const char* state; std::vector<std::string> counties; };
  const Case cases[] = {
      {"NC", {"ALAMANCE", "DURHAM", "ORANGE", "NOWHERE"}},  // leading and trailing blanks trimmed
      {"VA", {"NOTTOWAY", "RICHMOND CITY"}},                // the "XX" line is skipped
      {"OR", {"WASHINGTON"}},                               // ends at the "RA" line of Mexico
      {"ON", {"OTTAWA"}},
      {"TX", {}},
      {"nc", {}},  // codes compare case-sensitively
  };
  for (const auto& c : cases) EXPECT_EQ(CountryCountyList(Fixture(), c.state), c.counties) << c.state;
}

TEST(CountryFile, StateIndexHoldsOnlyTheStatesOfTheUsPart) {
  const FipsIndex index(Fixture());
  EXPECT_EQ(index.StateIndex(), "      NC0004 VA0009 OR0013 ");
  EXPECT_EQ(index.LineCount(), 18u);  // 17 lines and the empty text behind the last CR LF
}

TEST(CountryFile, FipsLookUpWalksFromTheStateLine) {
  const FipsIndex index(Fixture());
  struct Case { const char* state; const char* county; const char* fips; };
  const Case cases[] = {
      {"NC", "ORANGE", "135"},   {"NC", "DURHAM", "063"},   {"VA", "NOTTOWAY", "135"},
      {"VA", "RICHMOND CITY", "760"},
      {"NC", "NOWHERE", "000"},  // found; the caller refuses the value 0
      {"VA", "ORANGE", ""},      // ORANGE stands under North Carolina only
      {"NC", "NOTTOWAY", ""},    // the VA line turns the found-state flag off
      {"NC", "orange", ""},      // exact comparison
      {"TX", "ORANGE", ""},
      {"VA", "NOT A COUNTY", "999"},  // any line under the state counts, not only "RC" lines
      {"ON", "OTTAWA", "010"},   // not in the index: the walk starts at line 0 and meets ON
      {"OR", "AGUASCALIENTES", "001"},  // an "RA" line does not end the state's flag
  };
  for (const auto& c : cases) {
    EXPECT_EQ(index.LookUp(c.state, c.county), c.fips) << c.state << "/" << c.county;
  }
  EXPECT_EQ(LookUpFips(Fixture(), "NC", "ALAMANCE"), "001");
}

TEST(CountryFile, MissingFileIsAFileNotFoundFailure) {
  const std::string missing = testing::TestData("support/") + "no_such_country.dat";
  for (auto call : {+[](const std::string& p) { CountryStateList(p); },
                    +[](const std::string& p) { CountryCountyList(p, "NC"); },
                    +[](const std::string& p) { FipsIndex{p}; }}) {
    try {
      call(missing);
      ADD_FAILURE() << "no failure";
    } catch (const RuntimeFailure& failure) {
      EXPECT_EQ(failure.number, kFileNotFound);
    }
  }
}

TEST(CommittedCountryFile, EveryStateAndTerritoryHasItsCounties) {
  const auto states = CountryStateList(Committed());
  ASSERT_EQ(states.size(), 57u);  // 50 states, DC and six territories
  EXPECT_EQ(states.front(), "AK ALASKA");
  std::set<std::string> codes;
  for (const auto& state : states) {
    const std::string code = state.substr(0, 2);
    EXPECT_TRUE(codes.insert(code).second) << "twice: " << state;
    EXPECT_FALSE(CountryCountyList(Committed(), code).empty()) << state;
  }
  EXPECT_EQ(CountryCountyList(Committed(), "NC").size(), 100u);
  EXPECT_EQ(CountryCountyList(Committed(), "DE"), (std::vector<std::string>{"KENT", "NEW CASTLE", "SUSSEX"}));
}

TEST(CommittedCountryFile, FipsCodesMatchTheCensusTable) {
  // Codes taken by hand from the Census county table (us_counties.csv).
  struct Case { const char* state; const char* county; const char* fips; };
  const Case cases[] = {
      {"NC", "ORANGE", "135"},       {"NC", "DURHAM", "063"},         {"NC", "ALAMANCE", "001"},
      {"CT", "FAIRFIELD", "001"},    {"CT", "WINDHAM", "015"},        {"CT", "CAPITOL PLANNING REGION", "110"},
      {"LA", "LASALLE", "059"},      {"LA", "LA SALLE", "059"},       {"VA", "RICHMOND CITY", "760"},
      {"VA", "RICHMOND", "159"},     {"VA", "BEDFORD CITY", "515"},   {"MO", "ST. LOUIS CITY", "510"},
      {"AK", "PETERSBURG BOROUGH", "195"}, {"AK", "WADE HAMPTON CENSUS AREA", "270"},
      {"PR", "ANASCO", "011"},       {"NM", "DONA ANA", "013"},       {"DC", "DISTRICT OF COLUMBIA", "001"},
      {"HI", "KALAWAO", "005"},      {"TX", "LOVING", "301"},         {"SD", "SHANNON", "113"},
      {"SD", "OGLALA LAKOTA", "102"}, {"VI", "ST. CROIX ISLAND", "010"},
  };
  const FipsIndex index(Committed());
  for (const auto& c : cases) {
    EXPECT_EQ(index.LookUp(c.state, c.county), c.fips) << c.state << "/" << c.county;
  }
}

TEST(CommittedCountryFile, EveryListedCountyIsFoundByTheLookUp) {
  const FipsIndex index(Committed());
  for (const auto& state : CountryStateList(Committed())) {
    const std::string code = state.substr(0, 2);
    for (const auto& county : CountryCountyList(Committed(), code)) {
      const std::string fips = index.LookUp(code, county);
      ASSERT_EQ(fips.size(), 3u) << code << "/" << county;
      EXPECT_NE(fips, "000") << code << "/" << county;
    }
  }
}

}  // namespace
}  // namespace benchlog
