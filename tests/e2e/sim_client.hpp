#pragma once
// The program's side of a run against oco-sim: a program folder, the fakes, the Qt transfer and a
// session; and a suite that shares one oco-sim on the sample dataset, its log emptied before each test.
#include <gtest/gtest.h>

#include <memory>

#include "e2e/sim_get.hpp"
#include "fakes/fakes.hpp"
#include "fakes/oco_sim_process.hpp"
#include "fakes/temp_folder.hpp"
#include "fakes/test_paths.hpp"
#include "platform/qt/qt_http_transport.hpp"

namespace benchlog::testing {

struct SimClient {
  // Points the transfer at `baseUrl`, with the waits between tries and the time-out shortened.
  void UseService(const std::string& baseUrl, const char* timeoutSeconds = "2") {
    fake.settings.SaveSetting("Settings", "ServiceAddress", baseUrl);
    fake.settings.SaveSetting("Settings", "RetryWait", "0.05");
    fake.settings.SaveSetting("Settings", "RequestTimeout", timeoutSeconds);
    fake.platform.http = &transport;
  }
  TempFolder folder;
  FakePlatform fake{folder.Path()};
  qt::QtHttpTransport transport{fake.settings};
  TestSession session;
};

class SampleSimTest : public ::testing::Test, public SimClient {
 protected:
  static void SetUpTestSuite() { sim = std::make_unique<OcoSimProcess>(SampleDataset()); }
  static void TearDownTestSuite() { sim.reset(); }
  void SetUp() override {
    UseService(sim->BaseUrl());
    ASSERT_EQ(SimGet(sim->BaseUrl() + "/sim/reset"), "OK\n");
  }
  static std::string Log() { return SimGet(sim->BaseUrl() + "/sim/log"); }
  inline static std::unique_ptr<OcoSimProcess> sim;
};

}  // namespace benchlog::testing
