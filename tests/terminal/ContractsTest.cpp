// The stand-in's contracts: ids and extended attributes.
#include <functional>

#include "platform/services/tqStock.h"
#include "tests/support/StandInTest.h"
#include "tests/terminal/ArrayOwner.h"

namespace {

using ExtAttrs = ArrayOwner<ExtAttr>;

class Contracts : public StandInTest {
protected:
  Contracts() {
    standin::Market market = SmallMarket();
    for (standin::Instrument& instrument : market.instruments)
      if (instrument.code == "TXFL6")
        instrument.extended = {{2, "V4=W;V5=2"}, {3, "V5=台指"}, {2, "V4=F"}};
    standin::SetMarket(market);
  }

  // The id, or "none" when the buffer is unchanged.
  static std::string Zuid(int exchId, const char* code) {
    char zuid[20] = "before";
    if (VLGetZUID(exchId, code, zuid))
      return zuid;
    EXPECT_STREQ(zuid, "before");
    return "none";
  }

  static std::string Parse(const char* text, const char* key) {
    CString value = "stale";
    const int found = CStockKey::ParseExtAttr(text, key, value);
    EXPECT_EQ(found != 0, !value.IsEmpty());
    return value.GetString();
  }
};

TEST_F(Contracts, TheServicesIdIsTheFullOneOfTheFirstExchangeThatListsTheCode) {
  EXPECT_EQ(Zuid(-1, "TXFL6"), "TXFL6.TF");
  EXPECT_EQ(Zuid(-1, "txfl6"), "TXFL6.TF");
  EXPECT_EQ(Zuid(-1, "7777"), "7777.TW");
  EXPECT_EQ(Zuid(2, "7777"), "7777.TE");
}

TEST_F(Contracts, WhatNoExchangeListsHasNoId) {
  EXPECT_EQ(Zuid(-1, "NOSUCH"), "none");
  EXPECT_EQ(Zuid(-1, "TXFL6.TF"), "none");
  EXPECT_EQ(Zuid(1, "TXFL6"), "none");
  EXPECT_EQ(Zuid(99, "TXFL6"), "none");
  EXPECT_EQ(Zuid(-1, ""), "none");
  EXPECT_EQ(Zuid(-1, "12345678901234567890123456789012345678901234567890"), "none");
  EXPECT_EQ(Zuid(-1, nullptr), "none");
  EXPECT_EQ(VLGetZUID(-1, "TXFL6", nullptr), 0);
}

TEST_F(Contracts, AttributesComeByKindInTheMarketsOrder) {
  ExtAttrs attrs;
  ASSERT_NE(VLGetExtendAttr("TXFL6.TF", ExtAttrWeekly, &attrs.list, &attrs.count), 0);
  ASSERT_EQ(attrs.count, 2);
  EXPECT_EQ(attrs.list[0].kind, 2);
  EXPECT_STREQ(attrs.list[0].text, "V4=W;V5=2");
  EXPECT_STREQ(attrs.list[1].text, "V4=F");
}

TEST_F(Contracts, AttributesAreInTheCodePage) {
  ExtAttrs attrs;
  ASSERT_NE(VLGetExtendAttr("txfl6.tf", ExtAttrShortName, &attrs.list, &attrs.count), 0);
  ASSERT_EQ(attrs.count, 1);
  EXPECT_EQ(attrs.list[0].text, standin::ToAnsi("V5=台指"));
}

TEST_F(Contracts, WithoutAttributesTheAnswerIsASuccessWithoutAnArray) {
  for (const auto& [id, kind] : {std::pair("TXFL6.TF", 1), std::pair("2330.TW", 2)}) {
    ExtAttrs attrs;
    EXPECT_NE(VLGetExtendAttr(id, kind, &attrs.list, &attrs.count), 0);
    EXPECT_EQ(attrs.list, nullptr);
    EXPECT_EQ(attrs.count, 0);
  }
}

TEST_F(Contracts, AttributesOfUnknownIdsFail) {
  for (const char* id : {"NOSUCH.TF", "TXFL6", "", static_cast<const char*>(nullptr)}) {
    ExtAttrs attrs;
    EXPECT_EQ(VLGetExtendAttr(id, 2, &attrs.list, &attrs.count), 0);
    EXPECT_EQ(attrs.list, nullptr);
    EXPECT_EQ(attrs.count, 0);
  }
  ExtAttrs attrs;
  EXPECT_EQ(VLGetExtendAttr("TXFL6.TF", 2, nullptr, &attrs.count), 0);
  EXPECT_EQ(VLGetExtendAttr("TXFL6.TF", 2, &attrs.list, nullptr), 0);
}

TEST_F(Contracts, AnAttributeIsReadByItsKey) {
  EXPECT_EQ(Parse("V3=1;V4=W;V5=a=b", "V3"), "1");
  EXPECT_EQ(Parse("V3=1;V4=W;V5=a=b", "V4"), "W");
  EXPECT_EQ(Parse("V3=1;V4=W;V5=a=b", "V5"), "a=b");
  EXPECT_EQ(Parse("V3=1;V3=2", "V3"), "1");
  EXPECT_EQ(Parse(";;V3;=x;V3=2;", "V3"), "2");
  EXPECT_EQ(Parse("V3=\xB3\x5C;V4=1", "V3"), "\xB3\x5C");
}

TEST_F(Contracts, AnAttributeThatIsMissingOrEmptyIsNone) {
  EXPECT_EQ(Parse("V3=1", "V4"), "");
  EXPECT_EQ(Parse("V33=1", "V3"), "");
  EXPECT_EQ(Parse("v3=1", "V3"), "");
  EXPECT_EQ(Parse(" V3=1", "V3"), "");
  EXPECT_EQ(Parse("V3=;V3=1", "V3"), "");
  EXPECT_EQ(Parse("", "V3"), "");
  EXPECT_EQ(Parse(nullptr, "V3"), "");
  EXPECT_EQ(Parse("V3=1", nullptr), "");
}

TEST_F(Contracts, OperationsAreRecordedAndFailWhenTold) {
  const std::pair<const char*, std::function<int()>> operations[] = {
      {"VLGetZUID",
       [] {
         char zuid[20] = {};
         return VLGetZUID(-1, "TXFL6", zuid);
       }},
      {"VLGetExtendAttr",
       [] {
         ExtAttrs attrs;
         return VLGetExtendAttr("TXFL6.TF", 2, &attrs.list, &attrs.count);
       }},
      {"CStockKey::ParseExtAttr",
       [] {
         CString value;
         return CStockKey::ParseExtAttr("V3=1", "V3", value);
       }},
  };
  for (const auto& [name, call] : operations) {
    SCOPED_TRACE(name);
    standin::ClearCalls();
    standin::FailCall(name, 2);
    EXPECT_NE(call(), 0);
    EXPECT_EQ(call(), 0);
    EXPECT_NE(call(), 0);
    EXPECT_EQ(standin::CountCalls(name), 3);
  }
}

} // namespace
