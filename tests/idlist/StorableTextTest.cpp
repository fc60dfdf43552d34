// What names, identifiers and id strings keep of bytes that the list file cannot hold.
#include "idlist/StorableText.h"

#include <string>

#include "platform/services/tqCommon.h"
#include "symbollist/SymbolList.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"

namespace {

using namespace std::string_literals;

class StorableTextTest : public StandInTest {};

struct KeptText {
  std::string given;
  std::string kept;
};

const KeptText kBothCodePages[] = {
    {"", ""},
    {"plain text 'with' & <signs>", "plain text 'with' & <signs>"},
    {"tab\t line\n return\r", "tab\t line\n return\r"},
    {"\xB3\x5C\xA5\x5C\xBB\x5C", "\xB3\x5C\xA5\x5C\xBB\x5C"},
    {"half\xA4", "half"},
    {"\xA4", ""},
    {"\xA4,B", ",B"},
    {"A\xA4 B", "A B"},
    {"\xFF mid \xFF", " mid "},
    {"a\x01"
     "b\x1F"
     "c\x0B",
     "abc"},
    {"nul\0in"s, "nulin"},
    {"\x7F", "\x7F"},
    {"\xA4\xA4\xA4", "\xA4\xA4"},
};

TEST_F(StorableTextTest, OnlyBytesThatTheFileCannotHoldAreLeftOut) {
  for (const KeptText& row : kBothCodePages) {
    SCOPED_TRACE(testing::PrintToString(row.given));
    const CString given(row.given.data(), static_cast<int>(row.given.size()));
    const CString kept = tq::StorableText(given);
    EXPECT_EQ(std::string(kept.GetString(), static_cast<size_t>(kept.GetLength())), row.kept);
    EXPECT_EQ(tq::IsStorable(given), row.given == row.kept);
    EXPECT_TRUE(tq::IsStorable(kept));
  }
}

// The euro sign is a character of one byte in one of the code pages, and no character in the other.
TEST_F(StorableTextTest, AByteThatIsACharacterOfOneCodePageOnly) {
  EXPECT_EQ(tq::IsStorable("\x80"), IsTraditionChinese() == 0);
}

TEST_F(StorableTextTest, WhatCanBeStoredIsShared) {
  const CString name = "\xB3\x5C\xA5\x5C";
  EXPECT_EQ(tq::StorableText(name).GetString(), name.GetString());
}

TEST_F(StorableTextTest, EveryWayIntoAListLeavesSuchBytesOut) {
  CSymbolList list;
  list.SetID("id\x02");
  list.SetName("half\xA4");
  EXPECT_STREQ(list.GetID(), "id");
  EXPECT_STREQ(list.GetName(), "half");
  EXPECT_EQ(list.Update1("2330.TW,\x03,2317.TW\xA4"), 1);
  EXPECT_STREQ(list.GetIDs(), "2330.TW,,2317.TW");
  EXPECT_EQ(list.Update1("2330.TW,\x03,2317.TW\xA4"), 0);
  EXPECT_EQ(list.InsertEntry(0, "Head\xA4:", true), 1);
  EXPECT_EQ(list.ReplaceEntry(1, "2454\x01.TW"), 1);
  EXPECT_EQ(list.InsertEntry(0, "\x01", true), 0);
  EXPECT_STREQ(list.GetIDs(), "Head:,2454.TW,2317.TW");
}

} // namespace
