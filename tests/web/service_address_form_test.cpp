#include <gtest/gtest.h>

#include "fakes/fakes.hpp"
#include "web/service_address_form.hpp"

namespace benchlog {
namespace {

using testing::FakePlatform;

struct Case {
  const char* address;
  const char* timeout;
  const char* fault;  // the start of the message; "" when OK is accepted
  const char* stored;  // "ServiceAddress" after an accepted OK
};

const Case kCases[] = {
    {"http://127.0.0.1:8642", "60", "", "http://127.0.0.1:8642"},
    {"  HTTPS://oco.example/cgi/ ", " 5 ", "", "HTTPS://oco.example/cgi"},
    {"http://[::1]:8642/", "3600", "", "http://[::1]:8642"},
    {"", "60", "The web service address must begin with http://", ""},
    {"ftp://oco.example", "60", "The web service address must begin with http://", ""},
    {"127.0.0.1:8642", "60", "The web service address must begin with http://", ""},
    {"http://", "60", "The web service address has no host name.", ""},
    {"http://:8642/x", "60", "The web service address has no host name.", ""},
    {"http://oco example", "60", "The web service address may not contain blanks.", ""},
    {"http://ann:pw@oco.example", "60", "The web service address may not hold a user name", ""},
    {"http://oco.example/?a=1", "60", "The web service address may not hold a user name", ""},
    {"http://oco.example:0", "60", "The port of the web service address", ""},
    {"http://oco.example:65536", "60", "The port of the web service address", ""},
    {"http://oco.example:80x", "60", "The port of the web service address", ""},
    {"http://oco.example", "0", "The time-out must be a whole number of seconds from 1 to 3600.", ""},
    {"http://oco.example", "3601", "The time-out must be", ""},
    {"http://oco.example", "1.5", "The time-out must be", ""},
    {"http://oco.example", "", "The time-out must be", ""},
};

TEST(FrmServiceAddress, OkAcceptsHttpUrlsWithAHostAndSavesThemOrSaysWhatIsWrong) {
  for (const Case& c : kCases) {
    SCOPED_TRACE(std::string(c.address) + " / " + c.timeout);
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
