// Ids and names of lists by hash.
#include "symbollist/ListIndex.h"

#include "symbollist/ListArray.h"
#include "tests/support/StandInTest.h"

namespace {

class ListIndexTest : public StandInTest {
protected:
  ~ListIndexTest() override { tq::DestroyLists(lists); }

  CSymbolList& Add(const char* id, const char* name) {
    auto* list = new CSymbolList;
    list->SetID(id);
    list->SetName(name);
    lists.Add(list);
    return *list;
  }

  CPtrArray lists;
};

TEST_F(ListIndexTest, AnEmptyArrayHasNothing) {
  const tq::ListIndex index(lists);
  EXPECT_EQ(index.FindById("a"), -1);
  EXPECT_EQ(index.FindById(""), -1);
  EXPECT_FALSE(index.HasName("a"));
}

TEST_F(ListIndexTest, AnswersAsTheSearchThroughTheArray) {
  Add("a", "One");
  Add("b", "\xB3\x5C");
  Add("A", "two");
  Add("", "");
  const tq::ListIndex index(lists);
  for (const char* text : {"a", "A", "b", "B", "c", "", "one", "ONE", "two", "\xB3\x5C", "\xB3"}) {
    EXPECT_EQ(index.FindById(text), tq::FindListById(lists, text)) << text;
    EXPECT_EQ(index.HasName(text), tq::FindListByName(lists, text) >= 0) << text;
  }
}

TEST_F(ListIndexTest, AddedListsAreFound) {
  tq::ListIndex index(lists);
  index.Add(Add("a", "One"), 0);
  index.Add(Add("A", "Other"), 1);
  EXPECT_EQ(index.FindById("a"), 0);
  EXPECT_TRUE(index.HasName("other"));
}

TEST_F(ListIndexTest, NamesAreThoseThatAreKept) {
  const std::string tooLong(70, 'n');
  Add("a", tooLong.c_str());
  const tq::ListIndex index(lists);
  EXPECT_FALSE(index.HasName(tooLong.c_str()));
  EXPECT_TRUE(index.HasName(tooLong.substr(0, 64).c_str()));
}

} // namespace
