// The terminal's window messages, as this library registers them.
#include "dialogs/WindowMessages.h"

#include <gtest/gtest.h>

#include <set>

#include "platform/framework/window/RegisteredMessage.h"

namespace {

using tq::TerminalMessage;

struct NamedMessage {
  TerminalMessage message;
  const char* name;
};

constexpr NamedMessage kMessages[] = {
    {TerminalMessage::General, "KORVANT_Msg"},
    {TerminalMessage::Posted, "KORVANT_PostMsg"},
    {TerminalMessage::AlertGrid, "KORVANT_AlertGrid"},
    {TerminalMessage::AlertListGroup, "KORVANT_AlertListGrou"},
    {TerminalMessage::AlertHistory, "KORVANT_AlertHistDlg"},
    {TerminalMessage::SymbolAlerts, "KORVANT_SymbolAlertMgr"},
    {TerminalMessage::MatchGrid, "KORVANT_TSMatchGrid"},
    {TerminalMessage::Signal, "KORVANT_SignalUI"},
    {TerminalMessage::QuotePaneSignal, "KORVANT_QuotePaneSignalUI"},
    {TerminalMessage::DynamicExchange, "KORVANT_DDE"},
};

class WindowMessages : public testing::TestWithParam<NamedMessage> {};

TEST_P(WindowMessages, HasItsName) {
  EXPECT_STREQ(tq::TerminalMessageName(GetParam().message), GetParam().name);
}

TEST_P(WindowMessages, HasTheNumberThatEverybodyGetsForTheName) {
  EXPECT_NE(tq::TerminalMessageNumber(GetParam().message), 0u);
  EXPECT_EQ(tq::TerminalMessageNumber(GetParam().message), tq::RegisterMessage(GetParam().name));
}

std::string NameOf(const testing::TestParamInfo<NamedMessage>& info) {
  return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(All, WindowMessages, testing::ValuesIn(kMessages), NameOf);

TEST(WindowMessagesTable, AllNumbersDiffer) {
  std::set<unsigned> numbers;
  for (const NamedMessage& entry : kMessages)
    numbers.insert(tq::TerminalMessageNumber(entry.message));
  EXPECT_EQ(numbers.size(), static_cast<size_t>(tq::kTerminalMessages));
}

// The name was once cut short, and terminals use it that way.
TEST(WindowMessagesTable, TheNameThatWasCutShortIsNotMended) {
  EXPECT_NE(tq::TerminalMessageNumber(TerminalMessage::AlertListGroup),
            tq::RegisterMessage("KORVANT_AlertListGroup"));
}

} // namespace
