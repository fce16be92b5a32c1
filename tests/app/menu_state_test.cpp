#include <gtest/gtest.h>

#include "session/command_table.hpp"
#include "fakes/fakes.hpp"
#include "fakes/temp_folder.hpp"

namespace benchlog {
namespace {

// A menu name the tree does not declare is a fault of the program: a command that uses one fails
// with a box naming it instead of changing an entry that no window shows.
TEST(MenuState, AMisspeltNameFailsTheCommandThatUsesIt) {
  testing::TempFolder app;
  testing::FakePlatform fake(app.Path());
  testing::TestSession session;
  CommandTable table;
  table.Register("misspelt", [](Session& s, Platform&) { s.menu["mnuViewHCL"].enabled = true; });
  table.Run("misspelt", session, fake.platform);
  EXPECT_EQ(fake.ui.MessageTexts(), std::vector<std::string>{"The menu has no entry named \"mnuViewHCL\"."});
  EXPECT_FALSE(session.menu.Has("mnuViewHCL"));
  EXPECT_TRUE(session.menu.Has("mnuViewHcl"));
}

}  // namespace
}  // namespace benchlog
