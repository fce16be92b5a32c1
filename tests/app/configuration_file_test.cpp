#include <gtest/gtest.h>

#include "app/configuration_file.hpp"
#include "common/runtime_failure.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog {
namespace {
using testing::FakePlatform;
using testing::TempFolder;

const char* const kAllSupportFiles[] = {"Contrib.dat",   "Country.dat",          "Groups.dat",    "Monument_Category.dat",
                                        "Zones.txt",     "Horizontal_Datum.dat", "Ellipsoid.dat", "Towns.txt"};

struct ConfigurationTest : ::testing::Test {
  TempFolder app;
  FakePlatform fake{app.Path()};
  Configuration config;

  void WriteSupportFiles() {
    for (const char* name : kAllSupportFiles) app.Write(name, "x");
  }
  std::string Check(const std::string& ini) {
    app.Write("Benchlog.ini", ini);
    return CheckLoadFiles(fake.platform, config);
  }
};

TEST_F(ConfigurationTest, MissingConfigurationReportsOnlyItself) {
  // No support file exists either, yet only the configuration file is named.
  EXPECT_EQ(CheckLoadFiles(fake.platform, config), "Benchlog.ini\r\n");
  EXPECT_EQ(fake.platform.paths.supportPath, app.Path() + "/");
}

TEST_F(ConfigurationTest, MissingSupportFilesAreListedInTestOrder) {
  app.Write("Groups.dat", "x");
  app.Write("Towns.txt", "x");
  EXPECT_EQ(Check("ELLIPSOID E2=0.00669438002290\r\n"),
            "Contrib.dat\r\nCountry.dat\r\nMonument_Category.dat\r\nZones.txt\r\nHorizontal_Datum.dat\r\n"
            "Ellipsoid.dat\r\n");
  WriteSupportFiles();
  EXPECT_EQ(Check("ELLIPSOID E2=0.00669438002290\r\n"), "");
}

TEST_F(ConfigurationTest, KeysAndValuesAreTakenInUpperCaseAndLaterLinesWin) {
  WriteSupportFiles();
  Check("country=us\r\nState=md\r\nSTATE=va\r\nELLIPSOID A=6378137\r\nellipsoid e2=0.00669438002290\r\n"
        "Units=Meters\r\nno equals sign\r\n=orphan value\r\nHEMI1=n\r\nHEMI2=w\r\nHELP FILE=manual/index.html\r\n");
  EXPECT_EQ(config.country, "US");
  EXPECT_EQ(config.state, "VA");
  EXPECT_EQ(config.units, "METERS");
  EXPECT_EQ(config.hemi1, "N");
  EXPECT_EQ(config.hemi2, "W");
  EXPECT_EQ(config.helpFile, "MANUAL/INDEX.HTML");
  EXPECT_DOUBLE_EQ(config.ellipsoidA, 6378137.0);
  EXPECT_DOUBLE_EQ(config.ellipsoidE2, 0.00669438002290);
  // GRS 80: e'^2 = e^2 / (1 - e^2) = 0.006739496775...
  EXPECT_NEAR(config.ellipsoidEp2, 0.00673949677548, 1e-14);
}

TEST_F(ConfigurationTest, SupportPathComesOutInCapitals) {
  Check("Support File Path=c:\\data\\\r\n");
  EXPECT_EQ(fake.platform.paths.supportPath, "C:\\DATA\\");
}

TEST_F(ConfigurationTest, SupportPathInCapitalsFindsTheFolderOfAnyCase) {
  app.Write("support/Contrib.dat", "x");
  const std::string missing = Check("SUPPORT FILE PATH=" + app.Path() + "/support/\r\n");
  EXPECT_EQ(fake.platform.paths.supportPath, app.Path() + "/support/");
  EXPECT_EQ(missing.find("Contrib.dat"), std::string::npos);
  EXPECT_NE(missing.find("Country.dat"), std::string::npos);
}

TEST_F(ConfigurationTest, AbsentE2GivesZeroEccentricities) {
  WriteSupportFiles();
  EXPECT_EQ(Check("ELLIPSOID A=6378206.4\r\n"), "");
  EXPECT_EQ(config.ellipsoidE2, 0.0);
  EXPECT_EQ(config.ellipsoidEp2, 0.0);
}

TEST(SecondEccentricity, FailsOnTheSquareRoot) {
  EXPECT_NEAR(SecondEccentricitySquared(0.5), 1.0, 1e-15);
  try {
    SecondEccentricitySquared(1.0);
    FAIL();
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kDivisionByZero);
  }
  try {
    SecondEccentricitySquared(1.5);
    FAIL();
  } catch (const RuntimeFailure& failure) {
    EXPECT_EQ(failure.number, kInvalidProcedureCall);
  }
}

}  // namespace
}  // namespace benchlog
