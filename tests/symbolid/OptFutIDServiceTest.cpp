// COptFutID: calendar spreads of futures, and what the service knows about contracts.
#include <cstring>

#include "tests/symbolid/CombinationTest.h"

namespace {

class OptFutIDService : public CombinationTest {
protected:
  static std::string Spread(const CString& id1, char side1, const CString& id2, char side2) {
    COptFutID id;
    CString text = "before";
    char side = '?';
    if (id.MergeFuturID(text, side, id1, side1, id2, side2))
      return std::string(text) + "|" + side;
    EXPECT_STREQ(text, "before");
    EXPECT_EQ(side, '?');
    return "error " + std::to_string(id.GetErrorCode());
  }

  // "<found> <week> <text> <extra>"
  static std::string Week(const char* serviceId) {
    COptFutID id;
    int week = 7;
    CString text = "stale";
    CString extra = "stale";
    const int found = id.GetFutureWeek(serviceId, week, text, extra);
    return std::to_string(found) + " " + std::to_string(week) + " " + text.GetString() + " " +
           extra.GetString();
  }

  static std::string ShortId(const char* serviceId) {
    Checks id;
    CString out = "stale";
    const int found = id.GetShortID(out, serviceId);
    return std::to_string(found) + " " + out.GetString();
  }
};

TEST_F(OptFutIDService, TheNearerMonthIsWrittenFirst) {
  EXPECT_EQ(Spread("TXFL6", 'S', "TXFA7", 'B'), "TXF S 202612 - B 202701|B");
  EXPECT_EQ(Spread("TXFA7", 'B', "TXFL6", 'S'), "TXF S 202612 - B 202701|B");
  EXPECT_EQ(Spread("TXFA6", 'B', "TXFB6", 'S'), "TXF B 202601 - S 202602|S");
}

TEST_F(OptFutIDService, OfEqualMonthsTheFirstIdIs) {
  EXPECT_EQ(Spread("TXFL6", 'B', "TXFL6", 'S'), "TXF B 202612 - S 202612|S");
  EXPECT_EQ(Spread("TXFL6", 'S', "MXFL6", 'B'), "TXF S 202612 - B 202612|B");
}

TEST_F(OptFutIDService, TheCommodityIsThatOfTheFirstIdEvenWhenItIsLater) {
  EXPECT_EQ(Spread("TXFA7", 'B', "MXFL6", 'S'), "TXF S 202612 - B 202701|B");
}

TEST_F(OptFutIDService, SpreadsCrossADecadesEnd) {
  LiveIn(2029);
  EXPECT_EQ(Spread("TXFA0", 'B', "TXFL9", 'S'), "TXF S 202912 - B 203001|B");
}

TEST_F(OptFutIDService, FuturesIdsMustHaveFiveCharacters) {
  for (const char* bad : {"", "T", "TXFL"}) {
    EXPECT_EQ(Spread(bad, 'B', "TXFL6", 'S'), "error 1") << bad;
    EXPECT_EQ(Spread("TXFL6", 'B', bad, 'S'), "error 1") << bad;
  }
}

TEST_F(OptFutIDService, LongerFuturesIdsAreReadAtTheSamePlaces) {
  EXPECT_EQ(Spread("TXFL6.TF", 'B', "TXFA7xyz", 'S'), "TXF B 202612 - S 202701|S");
  EXPECT_EQ(Spread("12345", 'B', "TXFZ7", 'S'), "123 B 202700 - S 202726|S");
}

TEST_F(OptFutIDService, WeeklyContractsAreWrittenWithTheirWeek) {
  List("MX2L6", {{ExtAttrWeekly, "V4=W;V5=2"}});
  EXPECT_EQ(Spread("MX2L6", 'B', "MX2A7", 'S'), "MX2 B 202612W2 - S 202701|S");
  EXPECT_EQ(Spread("MX2A6", 'B', "MX2L6", 'S'), "MX2 B 202601 - S 202612W2|S");
  for (const char* operation : {"VLGetZUID", "VLGetExtendAttr", "CStockKey::ParseExtAttr"}) {
    standin::FailAlways(operation);
    EXPECT_EQ(Spread("MX2L6", 'B', "MX2A7", 'S'), "MX2 B 202612 - S 202701|S") << operation;
    standin::FailCall(operation, 0);
  }
}

TEST_F(OptFutIDService, AContractTheServiceDoesNotKnowIsAskedForByItsCodeAlone) {
  standin::ClearCalls();
  Spread("XXXL6", 'B', "TXFA7", 'S');
  ASSERT_EQ(standin::Calls().size(), 3u);
  EXPECT_EQ(standin::Calls()[0].operation + " " + standin::Calls()[0].arguments,
            "VLGetZUID -1,XXXL6");
  EXPECT_EQ(standin::Calls()[1].operation + " " + standin::Calls()[1].arguments,
            "VLGetZUID -1,TXFA7");
  EXPECT_EQ(standin::Calls()[2].operation + " " + standin::Calls()[2].arguments,
            "VLGetExtendAttr TXFA7.TF,2");
}

TEST_F(OptFutIDService, ASpreadMayReplaceItsOwnId) {
  CString text = "TXFL6";
  char side = 'S';
  COptFutID id;
  EXPECT_EQ(id.MergeFuturID(text, side, text, side, "TXFA7", 'B'), 1);
  EXPECT_STREQ(text, "TXF S 202612 - B 202701");
  EXPECT_EQ(side, 'B');
}

TEST_F(OptFutIDService, AWeekIsReadFromTheFirstRecord) {
  List("TX121000L6", {{ExtAttrShortName, "V3=9;V4=X;V5=9"},
                      {ExtAttrWeekly, "V3=21000.5;V4=W;V5=1"},
                      {ExtAttrWeekly, "V3=1;V4=F;V5=2"}});
  EXPECT_EQ(Week("TX121000L6.TF"), "1 1 W1 21000.5");
}

TEST_F(OptFutIDService, ARecordWithoutAWeekIsARecordAllTheSame) {
  List("TX121000L6", {{ExtAttrWeekly, "V9=1"}});
  EXPECT_EQ(Week("TX121000L6.TF"), "1 0  ");
  List("TX121000L6", {{ExtAttrWeekly, "V4=W"}});
  EXPECT_EQ(Week("TX121000L6.TF"), "1 0 W ");
  List("TX121000L6", {{ExtAttrWeekly, ""}});
  EXPECT_EQ(Week("TX121000L6.TF"), "1 0  ");
}

// Symptom: a text that fills its field without a NUL was read beyond the record.
TEST_F(OptFutIDService, ATextWithoutAnEndEndsWithItsField) {
  List("TX121000L6", {});
  const auto filled = [](int kind, std::string text) {
    ExtAttr record = {};
    record.kind = static_cast<short>(kind);
    text.resize(sizeof record.text, '9');
    text.copy(record.text, sizeof record.text);
    return std::vector<ExtAttr>{record};
  };
  standin::AnswerExtended("TX121000L6.TF", ExtAttrWeekly, filled(ExtAttrWeekly, "V4=W;V5=2;V3="));
  standin::AnswerExtended("TX121000L6.TF", ExtAttrShortName, filled(ExtAttrShortName, "V5=A;V6="));
  const std::string rest(sizeof ExtAttr::text, '9');
  EXPECT_EQ(Week("TX121000L6.TF"), "1 2 W2 " + rest.substr(std::strlen("V4=W;V5=2;V3=")));
  EXPECT_EQ(ShortId("TX121000L6.TF"), "1 A" + rest.substr(std::strlen("V5=A;V6=")) + " ");
}

TEST_F(OptFutIDService, WithoutARecordTheOutputsAreEmptied) {
  List("TX121000L6", {{ExtAttrShortName, "V5=1;V6=2"}});
  EXPECT_EQ(Week("TX121000L6.TF"), "0 0  ");
  EXPECT_EQ(Week("NOSUCH.TF"), "0 0  ");
  EXPECT_EQ(Week(""), "0 0  ");
  standin::FailAlways("VLGetExtendAttr");
  EXPECT_EQ(Week("TX121000L6.TF"), "0 0  ");
}

TEST_F(OptFutIDService, AShortNameEndsInABlank) {
  List("TX121000L6", {{ExtAttrWeekly, "V5=9;V6=9"}, {ExtAttrShortName, "V5=TX;V6=1"}});
  EXPECT_EQ(ShortId("TX121000L6.TF"), "1 TX1 ");
}

TEST_F(OptFutIDService, AShortNameIsTakenFromOneRecordWithBothPartsOnly) {
  List("TX121000L6", {{ExtAttrShortName, "V5=TX;V6=1"}, {ExtAttrShortName, "V5=TX;V6=1"}});
  EXPECT_EQ(ShortId("TX121000L6.TF"), "0 ");
  for (const char* text : {"V5=TX", "V6=1", "V5=;V6=1", "V5=TX;V6=", ""}) {
    List("TX121000L6", {{ExtAttrShortName, text}});
    EXPECT_EQ(ShortId("TX121000L6.TF"), "0 ") << text;
  }
  List("TX121000L6", {});
  EXPECT_EQ(ShortId("TX121000L6.TF"), "0 ");
  EXPECT_EQ(ShortId("NOSUCH.TF"), "0 ");
}

} // namespace
