// The lists of a kind, found by identifier and name through all that a terminal does to them.
#include "symbollist/OwnedLists.h"

#include <functional>
#include <random>
#include <string>
#include <utility>

#include "idlist/StorableText.h"
#include "tests/support/CraftedTexts.h"
#include "tests/support/StandInTest.h"

namespace {

std::unique_ptr<CSymbolList> NewList(const char* id, const char* name) {
  auto list = std::make_unique<CSymbolList>();
  list->SetID(id);
  list->SetName(name);
  return list;
}

class OwnedListsTest : public StandInTest {
protected:
  CSymbolList& Add(const char* id, const char* name) {
    lists.AddLast(NewList(id, name));
    return *lists.At(lists.GetSize() - 1);
  }

  bool PlainHasName(const std::string& name, int skip) {
    for (int i = 0; i < lists.GetSize(); ++i) {
      if (i != skip && lists.At(i)->IsSameName(name.c_str()))
        return true;
    }
    return false;
  }

  // Whether every answer is that of a walk through the array.
  void ExpectAnswersOfAWalk(const std::string& text) {
    int position = 0;
    while (position < lists.GetSize() && !lists.At(position)->IsSameID(text.c_str()))
      ++position;
    CSymbolList* const found = lists.Find(text.c_str());
    ASSERT_EQ(found, lists.At(position)) << text;
    if (found != nullptr) {
      ASSERT_EQ(lists.PositionOf(found), position) << text;
    }
    for (const int skip : {-1, 0, 1, lists.GetSize() / 2, lists.GetSize()})
      ASSERT_EQ(lists.HasName(text.c_str(), skip), PlainHasName(text, skip)) << text << skip;
  }

  tq::OwnedLists lists;
};

TEST_F(OwnedListsTest, WithoutListsNothingIsFound) {
  EXPECT_EQ(lists.Find("a"), nullptr);
  EXPECT_EQ(lists.Find(""), nullptr);
  EXPECT_EQ(lists.Find(nullptr), nullptr);
  EXPECT_FALSE(lists.HasName("a"));
}

TEST_F(OwnedListsTest, TheFirstOfSeveralWithOneIdIsFound) {
  Add("a", "One");
  CSymbolList& second = Add("A", "two");
  EXPECT_EQ(lists.Find("A"), lists.At(0));
  lists.AddFirst(NewList("a", "front"));
  EXPECT_STREQ(lists.Find("A")->GetName(), "front");
  lists.Delete(lists.Find("a"));
  lists.Delete(lists.Find("a"));
  EXPECT_EQ(lists.Find("a"), &second);
}

TEST_F(OwnedListsTest, SecondBytesOfCharactersHaveNoCase) {
  Add("\xA4\x41", "\xA4\x42");
  EXPECT_EQ(lists.Find("\xA4\x61"), nullptr);
  EXPECT_FALSE(lists.HasName("\xA4\x62"));
}

TEST_F(OwnedListsTest, NamesAreThoseThatAreKept) {
  const std::string tooLong(70, 'n');
  Add("a", tooLong.c_str());
  EXPECT_FALSE(lists.HasName(tooLong.c_str()));
  EXPECT_TRUE(lists.HasName(tooLong.substr(0, 64).c_str()));
}

TEST_F(OwnedListsTest, AListIsFoundUnderTheIdAndNameThatItWasGivenLast) {
  CSymbolList& list = Add("a", "One");
  list.SetID("b");
  list.SetName("Two");
  EXPECT_EQ(lists.Find("a"), nullptr);
  EXPECT_EQ(lists.Find("B"), &list);
  EXPECT_FALSE(lists.HasName("one"));
  EXPECT_TRUE(lists.HasName("two"));
}

TEST_F(OwnedListsTest, ACopyOfAListIsAnother) {
  CSymbolList& list = Add("a", "One");
  {
    CSymbolList copy(list);
    copy.SetID("b");
    EXPECT_EQ(lists.Find("b"), nullptr);
  }
  EXPECT_EQ(lists.Find("a"), &list);
}

TEST_F(OwnedListsTest, IdAndNameMayBeThoseOfAnyOfSeveral) {
  Add("a", "One");
  Add("A", "Two");
  EXPECT_TRUE(lists.HasIdAndName("a", "Two"));
  EXPECT_FALSE(lists.HasIdAndName("a", "two")) << "letter case counts in the name";
}

TEST_F(OwnedListsTest, ChangesCountWhatComesAndGoes) {
  const unsigned before = lists.Changes();
  Add("a", "One").SetName("Two");
  EXPECT_EQ(lists.Changes(), before + 1);
  lists.Delete(lists.Find("a"));
  EXPECT_EQ(lists.Changes(), before + 2);
}

TEST_F(OwnedListsTest, AnswersAreThoseOfAWalkWhateverHappens) {
  std::mt19937 random(5);
  const auto any = [&random] {
    return std::string(1, "aAbBcC"[random() % 6]) + std::to_string(random() % 4);
  };
  for (int step = 0; step < 2000; ++step) {
    const int size = lists.GetSize();
    CSymbolList* const one =
        size == 0 ? nullptr : lists.At(static_cast<int>(random() % static_cast<unsigned>(size)));
    const unsigned act = random() % 16;
    if (act < 3 || size == 0)
      Add(any().c_str(), any().c_str());
    else if (act < 6)
      lists.AddFirst(NewList(any().c_str(), any().c_str()));
    else if (act < 10 && one != nullptr)
      one->SetID(any().c_str());
    else if (act < 12 && one != nullptr)
      one->SetName(any().c_str());
    else if (act < 15 && one != nullptr)
      lists.Delete(one);
    else if (random() % 8 == 0)
      lists.DeleteIf([&](const CSymbolList&) { return random() % 2 == 0; });
    else if (random() % 40 == 0)
      lists.Destroy();
    ASSERT_NO_FATAL_FAILURE(ExpectAnswersOfAWalk(any()));
  }
}

TEST_F(OwnedListsTest, OtherListsTakeThePlaceOfAll) {
  Add("a", "One");
  tq::ListVector others;
  others.push_back(NewList("b", "Two"));
  others.push_back(NewList("B", "Three"));
  lists.Replace(std::move(others));
  EXPECT_EQ(lists.Find("a"), nullptr);
  EXPECT_STREQ(lists.Find("b")->GetName(), "Two");
  EXPECT_EQ(lists.PositionOf(lists.Find("b")), 0);
}

TEST_F(OwnedListsTest, OutsideOfItsRangeAPositionHasNoList) {
  Add("a", "One");
  EXPECT_EQ(lists.At(-1), nullptr);
  EXPECT_EQ(lists.At(1), nullptr);
}

TEST_F(OwnedListsTest, WhoIsToldByAddressNeedNotLiveAnyMore) {
  CSymbolList* const first = &Add("a", "One");
  CSymbolList* const second = &Add("b", "Two");
  EXPECT_TRUE(lists.Has(first, 0));
  EXPECT_TRUE(lists.Has(second, 0)) << "where it was is only where it is looked for first";
  lists.Delete(first);
  EXPECT_FALSE(lists.Has(first, 0));
  EXPECT_TRUE(lists.Has(second, 1));
}

TEST_F(OwnedListsTest, EachProblemOfANewIdIsABit) {
  Add("taken", "One");
  EXPECT_EQ(lists.ProblemsOfNewId("free"), 0);
  EXPECT_EQ(lists.ProblemsOfNewId(""), 0);
  EXPECT_EQ(lists.ProblemsOfNewId("TAKEN"), 1);
  EXPECT_EQ(lists.ProblemsOfNewId(std::string(36, 'x').c_str()), 0);
  EXPECT_EQ(lists.ProblemsOfNewId(std::string(37, 'x').c_str()), 2);
  EXPECT_EQ(lists.ProblemsOfNewId("a&b"), 4);
  EXPECT_EQ(lists.ProblemsOfNewId((std::string(36, 'x') + "<").c_str()), 6);
}

TEST_F(OwnedListsTest, CopiesAreTheCallersAndAreComparedByPosition) {
  Add("a", "One").Update1("2330.TW");
  Add("b", "Two");
  CPtrArray copies;
  lists.AppendCopies(copies);
  ASSERT_EQ(copies.GetSize(), 2);
  const std::unique_ptr<CSymbolList> first(static_cast<CSymbolList*>(copies[0]));
  const std::unique_ptr<CSymbolList> second(static_cast<CSymbolList*>(copies[1]));
  EXPECT_TRUE(lists.HaveNamesAndContentsOf(copies));
  second->SetID("another");
  EXPECT_TRUE(lists.HaveNamesAndContentsOf(copies)) << "identifiers do not count";
  second->SetName("two");
  EXPECT_FALSE(lists.HaveNamesAndContentsOf(copies)) << "letter case counts";
  second->SetName("Two");
  first->Update1("2317.TW");
  EXPECT_FALSE(lists.HaveNamesAndContentsOf(copies));
  copies.SetSize(1);
  EXPECT_FALSE(lists.HaveNamesAndContentsOf(copies));
}

// Ids crafted to collide, by a cloud service for example, so that a look-up compares with all.
TEST_F(OwnedListsTest, NobodyCanChooseIdsAndNamesOfOneBucket) {
  constexpr std::size_t kTexts = 80'000;
  const auto texts = CraftedTexts(kTexts, [](const std::string& text) {
    CString lower = text.c_str();
    return tq::IsStorable(lower.MakeLower()) && lower == text.c_str();
  });
  tq::ListIndex index;
  std::vector<CSymbolList> crafted(kTexts);
  for (std::size_t i = 0; i < kTexts; ++i) {
    ASSERT_EQ(std::hash<std::string>()(texts[i]), std::hash<std::string>()(texts[0]));
    crafted[i].SetID(texts[i].c_str());
    crafted[i].SetName(texts[i].c_str());
    index.AddLast(crafted[i]);
  }
  EXPECT_EQ(index.FindById(texts[kTexts / 2]), &crafted[kTexts / 2]);
  EXPECT_LT(index.LargestBucket(), 30u); // about 8 for hashes at random
}

} // namespace
