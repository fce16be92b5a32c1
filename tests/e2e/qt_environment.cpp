// The end-to-end tests talk to oco-sim through the program's Qt transfer, which needs an
// application object for its event loop: one for the whole executable.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <memory>

namespace {

class QtApplication : public ::testing::Environment {
 public:
  void SetUp() override { app_ = std::make_unique<QCoreApplication>(argc_, nullptr); }
  void TearDown() override { app_.reset(); }

 private:
  int argc_ = 0;
  std::unique_ptr<QCoreApplication> app_;
};

[[maybe_unused]] const auto* const kQtApplication = ::testing::AddGlobalTestEnvironment(new QtApplication);

}  // namespace
