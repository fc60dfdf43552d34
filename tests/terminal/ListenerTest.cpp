// Who hears what the library tells the services.
#include "platform/services/TQLog.h"
#include "platform/services/TQSProxy.h"
#include "platform/services/tqCommon.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"

namespace {

class ListenerTest : public StandInTest {
protected:
  ~ListenerTest() override { standin::Listen({}); }

  std::vector<std::string> heard;
};

TEST_F(ListenerTest, HearsANotificationThatStandsInTheRecords) {
  standin::Listen({.line = {}, .message = {}, .notification = [this](const auto& told) {
                     EXPECT_EQ(standin::Notifications().back().reason, told.reason);
                     heard.push_back(std::to_string(told.code) + told.reason);
                   }});
  TQSCall("", -1, 40, "a");
  TQSCall("", -1, 4, "b");
  EXPECT_EQ(heard, (std::vector<std::string>{"40a", "4b"}));
}

TEST_F(ListenerTest, HearsAMessageOfATextAndOneOfAnEntry) {
  standin::Listen({.line = {},
                   .message =
                       [this](const standin::Message& message) {
                         EXPECT_EQ(standin::Messages().back().id, message.id);
                         heard.push_back(std::to_string(message.id) + message.text);
                       },
                   .notification = {}});
  tqShowMessageStr("text", 0);
  tqShowDllMessage(nullptr, 48011, 0);
  EXPECT_EQ(heard, (std::vector<std::string>{"0text", "48011"}));
}

TEST_F(ListenerTest, HearsALineOfTheLog) {
  standin::Listen({.line =
                       [this](const standin::LogLine& line) {
                         heard.push_back(std::to_string(line.level) + line.text);
                       },
                   .message = {},
                   .notification = {}});
  const TempDir directory;
  TQLog log;
  log.storage(directory.Path().c_str(), "base", "prefix", false, true);
  log(64).write("%s", "said");
  EXPECT_EQ(heard, std::vector<std::string>{"64said"});
}

TEST_F(ListenerTest, MayBeTakenAwayWhileItHears) {
  standin::Listen({.line = {}, .message = {}, .notification = [this](const auto& told) {
                     standin::Listen({});
                     heard.push_back(told.reason);
                   }});
  TQSCall("", -1, 4, "first");
  TQSCall("", -1, 4, "second");
  EXPECT_EQ(heard, std::vector<std::string>{"first"});
}

TEST_F(ListenerTest, HearsNothingAfterAReset) {
  standin::Listen({.line = {}, .message = {}, .notification = [this](const auto& told) {
                     heard.push_back(told.reason);
                   }});
  standin::Reset();
  TQSCall("", -1, 4, "");
  EXPECT_TRUE(heard.empty());
}

} // namespace
