#include "platform/framework/CArray.h"

#include <memory>
#include <string>
#include <vector>

#include "tests/framework/FrameworkTest.h"

namespace {

std::string Joined(const CStringArray& array) {
  std::string joined;
  for (const CString& text : array)
    joined.append(&text == array.GetData() ? "" : ",").append(text);
  return joined;
}

void Fill(CStringArray& array, std::initializer_list<const char*> texts) {
  for (const char* text : texts)
    array.Add(text);
}

// Counts its objects, and stores its own address, so that it cannot be moved as bytes.
struct Tracked {
  explicit Tracked(int number = 0) : value(number), self(this) { ++alive; }
  Tracked(const Tracked& other) : value(other.value), self(this) { ++alive; }
  Tracked& operator=(const Tracked& other) {
    if (this != &other)
      value = other.value;
    return *this;
  }
  ~Tracked() {
    EXPECT_EQ(self, this);
    --alive;
  }
  int value;
  Tracked* self;
  static inline int alive = 0;
};

} // namespace

TEST(CArray, StartsEmptyWithoutStorage) {
  const StorageCount storage;
  const CStringArray array;
  EXPECT_EQ(array.GetSize(), 0);
  EXPECT_EQ(array.GetCount(), 0);
  EXPECT_EQ(array.GetUpperBound(), -1);
  EXPECT_TRUE(array.IsEmpty());
  EXPECT_EQ(array.GetData(), nullptr);
  EXPECT_EQ(storage.Taken(), 0);
}

TEST(CArray, AddReturnsTheIndex) {
  CStringArray array;
  EXPECT_EQ(array.Add("a"), 0);
  EXPECT_EQ(array.Add("b"), 1);
  EXPECT_EQ(array.GetUpperBound(), 1);
  EXPECT_EQ(array[1], "b");
  array[1] = "c";
  array.SetAt(0, "x");
  array.ElementAt(0) += "y";
  EXPECT_EQ(Joined(array), "xy,c");
  EXPECT_EQ(array.GetData()[1], "c");
}

TEST(CArray, AddedStringIsShared) {
  CStringArray array;
  array.SetSize(0, 8);
  array.Add("first");
  const CString text("2330.TW");
  const StorageCount storage;
  array.Add(text);
  EXPECT_EQ(array[1].GetString(), text.GetString());
  EXPECT_EQ(storage.Taken(), 0);
}

TEST(CArray, AddingOneByOneIsLinear) {
  const StorageCount storage;
  CUIntArray array;
  for (unsigned int i = 0; i < 100000; ++i)
    array.Add(i);
  EXPECT_LT(storage.Taken(), 40);
  EXPECT_EQ(array[99999], 99999u);
}

TEST(CArray, NewElementsAreZeroOrEmpty) {
  CUIntArray numbers;
  numbers.Add(7);
  numbers.SetSize(3);
  EXPECT_EQ(numbers[0], 7u);
  EXPECT_EQ(numbers[2], 0u);
  numbers.SetSize(1);
  numbers.SetSize(2);
  EXPECT_EQ(numbers[1], 0u) << "not what was there before";
  CPtrArray pointers;
  pointers.SetSize(2);
  EXPECT_EQ(pointers[1], nullptr);
  CStringArray texts;
  texts.SetSize(2);
  EXPECT_EQ(texts[1], "");
}

TEST(CArray, SetAtGrowFillsTheGap) {
  CStringArray array;
  array.SetAtGrow(2, "c");
  EXPECT_EQ(Joined(array), ",,c");
  array.SetAtGrow(0, "a");
  array.SetAtGrow(3, "d");
  EXPECT_EQ(array.GetSize(), 4);
  EXPECT_EQ(array[0], "a");
  EXPECT_EQ(array[3], "d");
}

TEST(CArray, InsertsValuesAndArrays) {
  CStringArray array, other;
  Fill(array, {"a", "d"});
  Fill(other, {"b", "c"});
  array.InsertAt(1, &other);
  EXPECT_EQ(Joined(array), "a,b,c,d");
  array.InsertAt(0, "x", 2);
  EXPECT_EQ(Joined(array), "x,x,a,b,c,d");
  array.InsertAt(6, "end");
  array.InsertAt(1, "none", 0);
  EXPECT_EQ(Joined(array), "x,x,a,b,c,d,end");
  array.InsertAt(9, "far");
  EXPECT_EQ(array.GetSize(), 10);
  EXPECT_EQ(array[8], "");
  EXPECT_EQ(array[9], "far");
}

TEST(CArray, RemovesFromAnyPlace) {
  CStringArray array;
  Fill(array, {"a", "b", "c", "d", "e"});
  array.RemoveAt(0);
  EXPECT_EQ(Joined(array), "b,c,d,e");
  array.RemoveAt(1, 2);
  EXPECT_EQ(Joined(array), "b,e");
  array.RemoveAt(1);
  array.RemoveAt(1, 0);
  EXPECT_EQ(Joined(array), "b");
  array.RemoveAll();
  EXPECT_TRUE(array.IsEmpty());
}

TEST(CArray, ItsOwnElementsAreSafeArguments) {
  CStringArray array;
  array.Add("a");
  for (int i = 0; i < 100; ++i)
    array.Add(array[0]);
  array.InsertAt(0, array[100], 50);
  EXPECT_EQ(array.GetSize(), 151);
  for (const CString& text : array)
    ASSERT_EQ(text, "a");
}

TEST(CArray, AppendCopyAndInsertTakeTheArrayItself) {
  CStringArray array;
  Fill(array, {"a", "b"});
  EXPECT_EQ(array.Append(array), 2);
  EXPECT_EQ(Joined(array), "a,b,a,b");
  array.SetSize(2);
  array.InsertAt(1, &array);
  EXPECT_EQ(Joined(array), "a,a,b,b");
  array.Copy(array);
  EXPECT_EQ(Joined(array), "a,a,b,b");
  array.SetSize(2);
  array.InsertAt(3, &array);
  EXPECT_EQ(array.GetSize(), 5);
  EXPECT_EQ(array[3], "a");
}

TEST(CArray, CopyIsIndependent) {
  CStringArray from, to;
  Fill(from, {"a", "b"});
  Fill(to, {"x", "y", "z"});
  to.Copy(from);
  from[0] = "changed";
  EXPECT_EQ(Joined(to), "a,b");
}

TEST(CArray, MoveHandsOverTheElements) {
  CStringArray from;
  Fill(from, {"a", "b"});
  const CString* const data = from.GetData();
  CStringArray to(std::move(from));
  EXPECT_EQ(to.GetData(), data);
  EXPECT_TRUE(from.IsEmpty()); // NOLINT(bugprone-use-after-move): the contract
}

TEST(CArray, FreeExtraGivesBackTheRoom) {
  CUIntArray array;
  array.SetSize(1000);
  array.SetSize(1);
  {
    const StorageCount storage;
    array.SetSize(1000);
    EXPECT_EQ(storage.Taken(), 0) << "removing keeps the room";
  }
  array.SetSize(1);
  array.FreeExtra();
  const StorageCount storage;
  array.Add(1);
  EXPECT_EQ(storage.Taken(), 1);
  array.RemoveAll();
  array.FreeExtra();
  EXPECT_EQ(array.GetData(), nullptr);
}

TEST(CArray, GrowByIsTheLeastStep) {
  CUIntArray array;
  array.SetSize(0, 500);
  const StorageCount storage;
  for (unsigned int i = 0; i < 500; ++i)
    array.Add(i);
  EXPECT_EQ(storage.Taken(), 1);
}

TEST(CArray, ElementsThatKnowTheirAddressAreMovedAsObjects) {
  {
    CArray<Tracked> array;
    for (int i = 0; i < 20; ++i)
      array.Add(Tracked(i));
    array.InsertAt(3, Tracked(100), 4);
    array.RemoveAt(0, 2);
    array.InsertAt(5, array[0]);
    array.FreeExtra();
    const int wanted[] = {2, 100, 100, 100, 100, 2, 3, 4};
    for (int i = 0; i < 8; ++i)
      EXPECT_EQ(array[i].value, wanted[i]) << i;
    EXPECT_EQ(Tracked::alive, array.GetSize());
    array.SetSize(5);
    EXPECT_EQ(Tracked::alive, 5);
  }
  EXPECT_EQ(Tracked::alive, 0);
}

TEST(CArray, HoldsElementsThatCanOnlyBeMoved) {
  struct Account {
    CString id;
    CArray<int> holdings;
  };
  CArray<Account> accounts;
  for (int i = 0; i < 30; ++i) {
    accounts.SetSize(i + 1);
    accounts[i].id.Format("%d", i);
    accounts[i].holdings.SetAtGrow(i, i);
  }
  accounts.RemoveAt(3);
  EXPECT_EQ(accounts[3].id, "4");
  EXPECT_EQ(accounts[28].holdings[29], 29);
}
