// The stand-in TQSProxy, TQSObj, tqCommon and tqUtil.
#include "platform/services/TQSObj.h"
#include "platform/services/TQSProxy.h"
#include "platform/services/tqCommon.h"
#include "platform/services/tqUtil.h"
#include "tests/support/StandInTest.h"

namespace {

class UserServices : public StandInTest {};

TEST_F(UserServices, LoginInformationComesFromTheMarket) {
  char buffer[TQSUserInfoSize] = "stale";
  EXPECT_NE(TQSGetUserInfo(LoginInfoEntitledExchanges, buffer, ""), 0);
  EXPECT_STREQ(buffer, "1,2,3");
  EXPECT_NE(TQSGetUserInfo(LoginInfoDefaultExchanges, buffer, ""), 0);
  EXPECT_STREQ(buffer, "1,2");
  EXPECT_EQ(TQSGetUserInfo(static_cast<LoginInfoFlag>(5), buffer, ""), 0);
  EXPECT_EQ(TQSGetUserInfo(LoginInfoDefaultExchanges, nullptr, ""), 0);
  EXPECT_EQ(TQSGetUserInfo(LoginInfoDefaultExchanges, buffer, nullptr), 0);
}

TEST_F(UserServices, LoginInformationIsCutToTheBuffer) {
  standin::Market market = SmallMarket();
  market.entitled = std::string(300, '1');
  standin::SetMarket(market);
  char buffer[TQSUserInfoSize];
  ASSERT_NE(TQSGetUserInfo(LoginInfoEntitledExchanges, buffer, ""), 0);
  EXPECT_EQ(std::string(buffer), std::string(TQSUserInfoSize - 1, '1'));
}

TEST_F(UserServices, TheFullMenuKeyIsThereOnlyWhenTheMarketHasOne) {
  char buffer[TQSExtraValueSize] = "kept";
  EXPECT_EQ(TQSGetUserExtraValue("", "FullMenuKey", buffer, sizeof buffer), 0);
  EXPECT_STREQ(buffer, "kept");
  standin::Market market = SmallMarket();
  market.fullMenuKey = "KEY";
  standin::SetMarket(market);
  EXPECT_NE(TQSGetUserExtraValue("", "FullMenuKey", buffer, sizeof buffer), 0);
  EXPECT_STREQ(buffer, "KEY");
  EXPECT_NE(TQSGetUserExtraValue("", "FullMenuKey", buffer, 3), 0);
  EXPECT_STREQ(buffer, "KE");
  EXPECT_EQ(TQSGetUserExtraValue("", "OtherKey", buffer, sizeof buffer), 0);
  EXPECT_EQ(TQSGetUserExtraValue("Section", "FullMenuKey", buffer, sizeof buffer), 0);
  EXPECT_EQ(TQSGetUserExtraValue("", "FullMenuKey", buffer, 0), 0);
  EXPECT_EQ(TQSGetUserExtraValue("", "FullMenuKey", nullptr, 9), 0);
}

TEST_F(UserServices, NotificationsAreKeptInOrder) {
  TQSCall("", -1, 40, "ListCntChange");
  TQSCall("", -1, 4, "");
  TQSCall(nullptr, -1, 4, "");
  ASSERT_EQ(standin::Notifications().size(), 2u);
  EXPECT_EQ(standin::Notifications()[0].target, "");
  EXPECT_EQ(standin::Notifications()[0].reserved, -1);
  EXPECT_EQ(standin::Notifications()[0].code, 40);
  EXPECT_EQ(standin::Notifications()[0].reason, "ListCntChange");
  EXPECT_EQ(standin::Notifications()[1].code, 4);
}

TEST_F(UserServices, MessagesAreKeptAndAnsweredAsOrdered) {
  int module = 0;
  EXPECT_EQ(tqShowDllMessage(&module, 48026, 0), 1);
  standin::AnswerMessages(7);
  EXPECT_EQ(tqShowDllMessage(nullptr, 48012, 4), 7);
  ASSERT_EQ(standin::Messages().size(), 2u);
  EXPECT_EQ(standin::Messages()[0].id, 48026u);
  EXPECT_EQ(standin::Messages()[0].resources, &module);
  EXPECT_EQ(standin::Messages()[1].type, 4u);
}

TEST_F(UserServices, MessagesAreAnsweredInTurn) {
  standin::AnswerMessages(2);
  standin::AnswerMessagesInTurn({6, 7});
  EXPECT_EQ(tqShowDllMessage(nullptr, 48012, 4), 6);
  EXPECT_EQ(standin::WaitingAnswers(), 1u);
  EXPECT_EQ(tqShowMessageStr("text", 4), 7);
  EXPECT_EQ(tqShowDllMessage(nullptr, 48012, 3), 2);
  standin::AnswerMessagesInTurn({6});
  standin::AnswerMessages(1);
  EXPECT_EQ(standin::WaitingAnswers(), 0u);
  EXPECT_EQ(tqShowDllMessage(nullptr, 48012, 3), 1);
  standin::AnswerMessagesInTurn({6});
  standin::Reset();
  EXPECT_EQ(tqShowDllMessage(nullptr, 48012, 3), 1);
}

// On Windows a box on the screen would wait for somebody to press a button.
TEST_F(UserServices, MessagesAreNotShownOnTheScreenUnlessAskedFor) {
  standin::AnswerMessages(7);
  EXPECT_EQ(tqShowMessageStr("text", 4), 7);
  standin::ShowMessages(true);
  standin::Reset();
  standin::AnswerMessages(7);
  EXPECT_EQ(tqShowMessageStr("text", 4), 7);
}

TEST_F(UserServices, AMessageThatCannotBeShownIsNotKept) {
  standin::FailCall("tqShowDllMessage", 1);
  EXPECT_EQ(tqShowDllMessage(nullptr, 48026, 0), 0);
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(UserServices, AMessageOfATextIsKeptAsItIs) {
  const std::string text = standin::ToAnsi("許功蓋") + " 100%s";
  standin::AnswerMessages(6);
  EXPECT_EQ(tqShowMessageStr(text.c_str(), 4), 6);
  EXPECT_EQ(tqShowMessageStr(nullptr, 0), 6);
  standin::FailCall("tqShowMessageStr", 1);
  EXPECT_EQ(tqShowMessageStr("unseen", 0), 0);
  ASSERT_EQ(standin::Messages().size(), 2u);
  EXPECT_EQ(standin::Messages()[0].id, 0u);
  EXPECT_EQ(standin::Messages()[0].type, 4u);
  EXPECT_EQ(standin::Messages()[0].resources, nullptr);
  EXPECT_EQ(standin::Messages()[0].text, text);
  EXPECT_EQ(standin::Messages()[1].text, "");
}

TEST_F(UserServices, AFileNameHasNoneOfNineCharactersAndNoControlCharacter) {
  for (const char refused : std::string("\\/:*?\"<>|\t\n\x1F")) {
    const std::string name = std::string("a") + refused + "b";
    EXPECT_EQ(CCheckFileName::IsValidName(nullptr, name.c_str(), 0), 0) << name;
  }
  EXPECT_EQ(CCheckFileName::IsValidName(nullptr, "", 0), 0);
  EXPECT_EQ(CCheckFileName::IsValidName(nullptr, nullptr, 0), 0);
  for (const char* good : {"a", "My list", "a&b's", "x.y", "\xB3\x5C\xA5\x7C\xBB\x5C"})
    EXPECT_NE(CCheckFileName::IsValidName(nullptr, good, 0), 0) << good;
  EXPECT_TRUE(standin::Messages().empty());
}

TEST_F(UserServices, ARefusedFileNameIsSaidWhenAskedTo) {
  EXPECT_NE(CCheckFileName::IsValidName(nullptr, "good", 1), 0);
  EXPECT_TRUE(standin::Messages().empty());
  EXPECT_EQ(CCheckFileName::IsValidName(nullptr, "a/b", 1), 0);
  ASSERT_EQ(standin::Messages().size(), 1u);
  EXPECT_EQ(standin::Messages()[0].id, 0u);
  EXPECT_NE(standin::Messages()[0].text.find("\\/:*?\"<>|"), std::string::npos);
}

} // namespace
