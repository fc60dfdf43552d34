// The trading list file, byte for byte.
#include "accounts/TradingFile.h"

#include <string>

#include "platform/services/tqCommon.h"
#include "platform/xml/XmlDocument.h"
#include "terminal/StandIn.h"
#include "tests/accounts/TradingRecords.h"
#include "tests/support/StandInTest.h"

namespace {

using tqtest::Account;

class TradingFileTest : public StandInTest {
protected:
  static std::string Declaration() {
    return std::string("<?xml version='1.0' encoding='") +
           (IsTraditionChinese() ? "big5" : "gb2312") + "' ?>\n";
  }
  static tq::CTS System(const std::string& id, const std::string& name) {
    tq::CTS system;
    system.info = tqtest::SystemInfo(id, name);
    return system;
  }
};

TEST_F(TradingFileTest, AnEmptyTableHasTheFrameAlone) {
  EXPECT_EQ(tq::TradingFileText({}), Declaration() + "<TSList>\n</TSList>");
}

TEST_F(TradingFileTest, OneAccountHoldingTwoSymbols) {
  tq::CTS system = System("T1", "Broker");
  system.accounts.push_back(Account(1, "9801234567", "9801-***4567", "2330,2317"));
  EXPECT_EQ(tq::TradingFileText({system}),
            Declaration() + "<TSList>\n"
                            "\t<TS ID = 'T1' Name = 'Broker' >\n"
                            "\t\t<Account ID = '9801234567' DispID = '9801-***4567' "
                            "TqsAccType = '1' SymbolList = '2330,2317' />\n"
                            "\t</TS>\n"
                            "</TSList>");
}

TEST_F(TradingFileTest, SystemsAndAccountsStandInTheOrderOfTheTable) {
  tq::CTS first = System("T2", "B");
  first.accounts.push_back(Account(2, "b", "B", ""));
  first.accounts.push_back(Account(1, "a", "A", "2330.TW"));
  EXPECT_EQ(tq::TradingFileText({first, System("T1", "")}),
            Declaration() +
                "<TSList>\n"
                "\t<TS ID = 'T2' Name = 'B' >\n"
                "\t\t<Account ID = 'b' DispID = 'B' TqsAccType = '2' SymbolList = '' />\n"
                "\t\t<Account ID = 'a' DispID = 'A' TqsAccType = '1' SymbolList = '2330.TW' />\n"
                "\t</TS>\n"
                "\t<TS ID = 'T1' Name = '' >\n"
                "\t</TS>\n"
                "</TSList>");
}

TEST_F(TradingFileTest, TheDeclarationIsThatOfTheInterfaceLanguage) {
  standin::SetTraditional(true);
  EXPECT_EQ(tq::TradingFileText({}), "<?xml version='1.0' encoding='big5' ?>\n<TSList>\n</TSList>");
  standin::SetTraditional(false);
  EXPECT_EQ(tq::TradingFileText({}),
            "<?xml version='1.0' encoding='gb2312' ?>\n<TSList>\n</TSList>");
}

TEST_F(TradingFileTest, ANegativeTypeIsWrittenAsANumber) {
  tq::CTS system = System("T", "N");
  system.accounts.push_back(Account(-3, "a", "A", ""));
  EXPECT_NE(tq::TradingFileText({system}).find("TqsAccType = '-3'"), std::string::npos);
}

TEST_F(TradingFileTest, NothingIsEscaped) {
  tq::CTS system = System("T'&", "<\xB3\x5C>");
  system.accounts.push_back(Account(1, "a\"", "it's", "A&B,C<D"));
  const std::string text = tq::TradingFileText({system});
  EXPECT_NE(text.find("\t<TS ID = 'T'&' Name = '<\xB3\x5C>' >\n"), std::string::npos);
  EXPECT_NE(text.find("ID = 'a\"' DispID = 'it's' TqsAccType = '1' SymbolList = 'A&B,C<D' />\n"),
            std::string::npos);
}

// Bytes that no reader of the declared encoding takes: half of a character, a control byte.
TEST_F(TradingFileTest, WhateverTheFieldsHoldTheFileCanBeRead) {
  tq::CTS system = System("T\xA4", "Bro\x01ker\xFF");
  system.accounts.push_back(Account(1, "9\x02", "9-\xB3\x5C\xB3", "2330\x7F\x1B.TW,\xA4"));
  const std::string text = tq::TradingFileText({system});
  tq::XmlDocument document;
  ASSERT_TRUE(document.Load(text.data(), text.size()));
  CString value;
  EXPECT_TRUE(document.SelectSingle("/TSList/TS").Attribute("Name", value));
  EXPECT_STREQ(value, "Broker");
  const tq::XmlElement account = document.SelectSingle("/TSList/TS/Account");
  EXPECT_TRUE(account.Attribute("DispID", value));
  EXPECT_STREQ(value, "9-\xB3\x5C");
  EXPECT_TRUE(account.Attribute("SymbolList", value));
  EXPECT_STREQ(value, "2330\x7F.TW,");
}

TEST_F(TradingFileTest, FieldsWithoutATerminatorEndWithTheField) {
  tq::CTS system = System(std::string(40, 'i'), std::string(300, 'n'));
  system.accounts.push_back(Account(1, std::string(40, 'a'), std::string(900, 'd'), "2330.TW"));
  EXPECT_EQ(tq::TradingFileText({system}),
            Declaration() + "<TSList>\n\t<TS ID = '" + std::string(32, 'i') + "' Name = '" +
                std::string(256, 'n') + "' >\n\t\t<Account ID = '" + std::string(32, 'a') +
                "' DispID = '" + std::string(768, 'd') +
                "' TqsAccType = '1' SymbolList = '2330.TW' />\n\t</TS>\n</TSList>");
}

TEST_F(TradingFileTest, WhatFollowsAFieldsTerminatorIsNotWritten) {
  tq::CTS system = System("T", std::string("N\0own", 5));
  EXPECT_EQ(tq::TradingFileText({system}),
            Declaration() + "<TSList>\n\t<TS ID = 'T' Name = 'N' >\n\t</TS>\n</TSList>");
}

TEST_F(TradingFileTest, ItsOwnFilesMayBeWrittenOver) {
  tq::CTS system = System("T1", "it's & <Broker>");
  system.accounts.push_back(Account(1, "9801234567", "9801-***4567", "2330,2317"));
  EXPECT_TRUE(tq::IsOwnTradingFile(""));
  for (const auto& systems : {std::vector<tq::CTS>{}, {system}, {system, system}})
    EXPECT_TRUE(tq::IsOwnTradingFile(tq::TradingFileText(systems)));
  std::string other = tq::TradingFileText({system});
  const std::size_t encoding = other.find(IsTraditionChinese() ? "big5" : "gb2312");
  other.replace(encoding, IsTraditionChinese() ? 4 : 6, IsTraditionChinese() ? "gb2312" : "big5");
  EXPECT_TRUE(tq::IsOwnTradingFile(other)) << "of the other language";
}

TEST_F(TradingFileTest, AFileThatIsNotItsOwnIsToldFromThem) {
  const std::string own = tq::TradingFileText({System("T1", "Broker")});
  for (const std::string& other :
       {std::string("x"), own + "\n", " " + own, own.substr(0, 60), own.substr(0, own.size() - 1),
        Declaration(), Declaration() + "<TSList>\n<!-- mine -->\n</TSList>"})
    EXPECT_FALSE(tq::IsOwnTradingFile(other)) << other;
}

} // namespace
