// Symbols that are added to a list as text.
#include "dialogs/editors/AddedSymbols.h"

#include "tests/interface/EditTest.h"

namespace {

std::string IdsOf(const char* ids, const char* symbols) {
  return tq::AddSymbols(ids, symbols).ids.GetString();
}

std::string HeldOf(const char* ids, const char* symbols) {
  std::string text;
  for (const CString& id : tq::AddSymbols(ids, symbols).held)
    text += (text.empty() ? "" : " ") + std::string(id.GetString());
  return text;
}

TEST(AddedSymbols, StandBehindWhatTheListHas) {
  EXPECT_EQ(IdsOf("", "A.TW"), "A.TW");
  EXPECT_EQ(IdsOf("", "A.TW,B.TW"), "A.TW,B.TW");
  EXPECT_EQ(IdsOf("A.TW", "C.TW,B.TW"), "A.TW,C.TW,B.TW");
}

TEST(AddedSymbols, ThatTheListHasAreToldAndNotAdded) {
  EXPECT_EQ(IdsOf("B.TW", "A.TW,B.TW"), "B.TW,A.TW");
  EXPECT_EQ(HeldOf("B.TW", "A.TW,B.TW"), "B.TW");
  EXPECT_EQ(HeldOf("A.TW,B.TW,C.TW", "C.TW,A.TW"), "C.TW A.TW");
}

TEST(AddedSymbols, ThatAreAllThereLeaveTheTextAsItWas) {
  EXPECT_EQ(IdsOf(" b.tw ,,A.TW,", "A.TW,B.TW"), " b.tw ,,A.TW,");
}

TEST(AddedSymbols, LetterCaseAndBlanksAroundThemMakeNoDifference) {
  EXPECT_EQ(HeldOf("b.tw", " B.TW "), "B.TW");
  EXPECT_EQ(IdsOf("A.TW", " B.TW , C.TW"), "A.TW,B.TW,C.TW");
}

TEST(AddedSymbols, ThatAreNamedTwiceAreAddedOnce) {
  EXPECT_EQ(IdsOf("A.TW", "B.TW,b.tw,C.TW,B.TW"), "A.TW,B.TW,C.TW");
  EXPECT_EQ(HeldOf("A.TW", "B.TW,B.TW"), "");
}

TEST(AddedSymbols, AHeadingIsAddedAsItIsAsOftenAsItIsNamed) {
  EXPECT_EQ(IdsOf("Tag:,A.TW", "Tag:,B.TW, Two words:"), "Tag:,A.TW,Tag:,B.TW, Two words:");
  EXPECT_EQ(HeldOf("Tag:", "Tag:"), "");
}

TEST(AddedSymbols, NothingAddsNothing) {
  for (const char* const nothing : {"", ",", " , ,, "})
    EXPECT_EQ(IdsOf("A.TW,,", nothing), "A.TW,,") << nothing;
}

TEST(AddedSymbols, MayBeVeryMany) {
  std::string symbols;
  for (int i = 0; i < 100000; ++i)
    symbols += (i == 0 ? "" : ",") + std::to_string(i) + ".TW";
  const tq::AddedSymbols added = tq::AddSymbols("5.TW,x.TW", symbols.c_str());
  EXPECT_EQ(added.held.size(), 1u);
  EXPECT_EQ(static_cast<std::size_t>(added.ids.GetLength()), symbols.size() + 5u);
}

TEST(AddedSymbols, OfWhichOneCannotBeStoredAreRefusedTogether) {
  EXPECT_TRUE(tq::AreLoadable("A.TW,Tag:,B.TW"));
  EXPECT_TRUE(tq::AreLoadable(""));
  for (const char* const bad : {"A.TW,B&C.TW", "<", "it's.TW", "A\x01.TW"})
    EXPECT_FALSE(tq::AreLoadable(bad)) << bad;
}

class AddedTwice : public EditTest {};

TEST_F(AddedTwice, AreToldWithTheirNamesInOneQuestion) {
  StartWith({"A/one/2330.TW"});
  standin::ClearCalls();
  tq::TellAddedTwice({"1101.TW", "gone.TW", "2330.TW"});
  ASSERT_EQ(standin::Messages().size(), 1u);
  const std::string told = standin::FromAnsi(standin::Messages()[0].text);
  const std::string tsmc = IsTraditionChinese() != 0 ? "台積電" : "台积电";
  EXPECT_EQ(told.substr(told.find('\n') + 1), "1101.TW(台泥),gone.TW(),2330.TW(" + tsmc + ")");
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfos"), 1);
  EXPECT_EQ(standin::CountCalls("VLGetSymbolInfo"), 0);
}

TEST_F(AddedTwice, AreToldWithoutNamesWhenTheServiceFails) {
  StartWith({"A/one/2330.TW"});
  standin::FailAlways("VLGetSymbolInfos");
  tq::TellAddedTwice({"1101.TW"});
  ASSERT_EQ(standin::Messages().size(), 1u);
  const std::string told = standin::FromAnsi(standin::Messages()[0].text);
  EXPECT_EQ(told.substr(told.find('\n') + 1), "1101.TW()");
}

} // namespace
