// Message boxes where there is no screen.
#include "platform/services/tqCommon.h"
#include "tests/support/StandInTest.h"

namespace {

class ShownMessage : public StandInTest {};

TEST_F(ShownMessage, InMemoryAMessageThatShouldBeShownIsAnsweredAsOrdered) {
  standin::ShowMessages(true);
  standin::AnswerMessagesInTurn({6, 7});
  EXPECT_EQ(tqShowMessageStr("text", 4), 6);
  EXPECT_EQ(tqShowDllMessage(nullptr, 48012, 4), 7);
  EXPECT_EQ(standin::Messages().size(), 2u);
}

} // namespace
