#include <gtest/gtest.h>

#include "fakes/fakes.hpp"
#include "fakes/test_rows.hpp"
#include "web/service_address_form.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;

TEST(FrmServiceAddress, OkAcceptsHttpUrlsWithAHostAndSavesThemOrSaysWhatIsWrong) {
  for (const auto& row : testing::ReadRows("web/service_address.txt", 18, '|')) {
    const struct { const char *address, *timeout, *fault, *stored; } c{row[0].c_str(), row[1].c_str(), row[2].c_str(), row[3].c_str()};
    SCOPED_TRACE(row[0] + " / " + row[1]);
    FakePlatform fake;
    FrmServiceAddress form;
    form.Load(fake.settings);
    form.txtAddress = c.address;
    form.txtTimeout = c.timeout;
    form.Tag = "Canceled";
    const bool accepted = form.cmdOK_Click(fake.settings, fake.ui);
    EXPECT_EQ(accepted, *c.fault == '\0');
    if (accepted) {
      EXPECT_TRUE(fake.ui.messages.empty());
      EXPECT_EQ(form.Tag, "Okay");
      EXPECT_EQ(fake.settings.GetSetting("Settings", "ServiceAddress", "-"), c.stored);
      EXPECT_EQ(fake.settings.GetSetting("Settings", "RequestTimeout", "-"), std::to_string(std::stoi(c.timeout)));
    } else {
      ASSERT_EQ(fake.ui.messages.size(), 1u);
      EXPECT_EQ(fake.ui.messages[0].text.rfind(c.fault, 0), 0u) << fake.ui.messages[0].text;
      EXPECT_EQ(form.Tag, "Canceled");
      EXPECT_FALSE(fake.settings.Has("Settings", "ServiceAddress"));
      EXPECT_FALSE(fake.settings.Has("Settings", "RequestTimeout"));
    }
  }
}

}  // namespace
}  // namespace benchlog
