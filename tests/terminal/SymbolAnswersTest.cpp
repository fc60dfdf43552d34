// Raw records that replace the market's symbols and extended attributes.
#include <cstring>
#include <vector>

#include "platform/services/VLProxy.h"
#include "tests/support/StandInTest.h"
#include "tests/terminal/ArrayOwner.h"

namespace {

class SymbolAnswers : public StandInTest {
protected:
  static int Get(int exchId, Infos& infos) {
    return VLGetSymbolInfos2(exchId, -1, &infos.list, &infos.count, 0);
  }
};

TEST_F(SymbolAnswers, StandInThePlaceOfOneExchangesSymbols) {
  std::vector<SymbolInfo> records(2);
  std::strcpy(records[1].id, "X.Y");
  standin::AnswerSymbols(77, records, 1, 1);
  Infos infos;
  EXPECT_EQ(Get(77, infos), 1);
  EXPECT_EQ(infos.count, 1);
  EXPECT_STREQ(infos.list[1].id, "X.Y");
  Infos other;
  EXPECT_EQ(Get(1, other), 1);
  EXPECT_GT(other.count, 1);
}

TEST_F(SymbolAnswers, MayFailWithAnArray) {
  standin::AnswerSymbols(1, std::vector<SymbolInfo>(1), -3, 0);
  Infos infos;
  EXPECT_EQ(Get(1, infos), 0);
  EXPECT_NE(infos.list, nullptr);
  EXPECT_EQ(infos.count, -3);
  standin::FailCall("VLGetSymbolInfos2", 1);
  Infos failed;
  EXPECT_EQ(Get(1, failed), 0);
  EXPECT_EQ(failed.list, nullptr) << "as its contract says";
}

TEST_F(SymbolAnswers, ExtendedAttributesAreTheBytesThatWereGiven) {
  ExtAttr record;
  std::memset(&record, 'x', sizeof record);
  standin::AnswerExtended("NOSUCH", ExtAttrWeekly, {record, record});
  ArrayOwner<ExtAttr> attributes;
  EXPECT_EQ(VLGetExtendAttr("NOSUCH", ExtAttrWeekly, &attributes.list, &attributes.count), 1);
  ASSERT_EQ(attributes.count, 2);
  EXPECT_EQ(std::memcmp(&attributes.list[1], &record, sizeof record), 0);
  ArrayOwner<ExtAttr> other;
  EXPECT_EQ(VLGetExtendAttr("NOSUCH", ExtAttrShortName, &other.list, &other.count), 0);
}

TEST_F(SymbolAnswers, EndWithReset) {
  standin::AnswerSymbols(1, std::vector<SymbolInfo>(1), 1, 1);
  standin::AnswerExtended("2330.TW", ExtAttrWeekly, std::vector<ExtAttr>(1));
  standin::Reset();
  Infos infos;
  EXPECT_EQ(Get(1, infos), 0);
  ArrayOwner<ExtAttr> attributes;
  EXPECT_EQ(VLGetExtendAttr("2330.TW", ExtAttrWeekly, &attributes.list, &attributes.count), 0);
}

} // namespace
