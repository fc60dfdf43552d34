#include "platform/framework/CMap.h"

#include <map>
#include <random>
#include <string>

#include "tests/framework/FrameworkTest.h"

namespace {

using NumberMap = CMap<CString, const char*, int, int>;

std::string Walked(const NumberMap& map) {
  std::string walked;
  CString key;
  int value = 0;
  for (POSITION at = map.GetStartPosition(); at != nullptr;) {
    map.GetNextAssoc(at, key, value);
    walked += key.GetString() + std::to_string(value) + " ";
  }
  return walked;
}

} // namespace

TEST(CMap, StartsEmptyWithoutStorage) {
  const StorageCount storage;
  const NumberMap map(10);
  int value = 5;
  EXPECT_TRUE(map.IsEmpty());
  EXPECT_EQ(map.GetCount(), 0);
  EXPECT_EQ(map.GetStartPosition(), nullptr);
  EXPECT_FALSE(map.Lookup("a", value));
  EXPECT_EQ(map.PLookup("a"), nullptr);
  EXPECT_EQ(value, 5) << "a miss leaves the value";
  EXPECT_EQ(storage.Taken(), 0);
}

TEST(CMap, SetAtOverwritesAndKeepsThePlace) {
  NumberMap map;
  map.SetAt("a", 1);
  map.SetAt("b", 2);
  map.SetAt("a", 3);
  EXPECT_EQ(map.GetSize(), 2);
  EXPECT_EQ(Walked(map), "a3 b2 ");
}

TEST(CMap, SubscriptAddsAZeroValue) {
  NumberMap map;
  EXPECT_EQ(map["a"], 0);
  map["a"] += 5;
  int value = 0;
  EXPECT_TRUE(map.Lookup("a", value));
  EXPECT_EQ(value, 5);
  EXPECT_EQ(map.PLookup("a")->key, "a");
  map.PLookup("a")->value = 6;
  EXPECT_EQ(map["a"], 6);
}

TEST(CMap, KeysAreComparedWithRegardToCase) {
  NumberMap map;
  map.SetAt("tw", 1);
  EXPECT_EQ(map.PLookup("TW"), nullptr);
}

TEST(CMap, LookupByCharactersAllocatesNothing) {
  NumberMap map;
  for (int i = 0; i < 1000; ++i)
    map.SetAt(CString('k', i + 1), i);
  const CString key('k', 500);
  const StorageCount storage;
  int value = 0;
  EXPECT_TRUE(map.Lookup(key, value));
  EXPECT_FALSE(map.Lookup("missing", value));
  EXPECT_EQ(value, 499);
  EXPECT_EQ(storage.Taken(), 0);
}

TEST(CMap, WalksInTheOrderOfSetting) {
  NumberMap map(1);
  for (const char* key : {"z", "a", "m", "b"})
    map.SetAt(key, 0);
  EXPECT_EQ(Walked(map), "z0 a0 m0 b0 ");
  EXPECT_TRUE(map.RemoveKey("a"));
  EXPECT_FALSE(map.RemoveKey("a"));
  EXPECT_EQ(Walked(map), "z0 m0 b0 ");
  map.SetAt("a", 1);
  EXPECT_EQ(Walked(map), "z0 m0 b0 a1 ");
  map.RemoveKey("z");
  map.RemoveKey("a");
  EXPECT_EQ(Walked(map), "m0 b0 ");
}

TEST(CMap, EntryHandedOutMayBeRemovedOnTheWay) {
  NumberMap map;
  for (const char* key : {"a", "b", "c", "d"})
    map[key] = static_cast<unsigned char>(key[0]);
  CString key;
  int value = 0;
  for (POSITION at = map.GetStartPosition(); at != nullptr;) {
    map.GetNextAssoc(at, key, value);
    if (value % 2 == 0)
      map.RemoveKey(key);
  }
  EXPECT_EQ(Walked(map), "a97 c99 ");
}

TEST(CMap, ValuesKeepTheirAddressWhileTheMapGrows) {
  NumberMap map(2);
  int* const first = &map["first"];
  *first = 7;
  CString key;
  for (int i = 0; i < 5000; ++i) {
    key.Format("%d", i);
    map.SetAt(key, i);
  }
  EXPECT_EQ(&map["first"], first);
  EXPECT_EQ(*first, 7);
}

TEST(CMap, FillingAsksForFewBlocks) {
  CMap<int, int, int, int> map(10);
  const StorageCount storage;
  for (int i = 0; i < 100000; ++i)
    map.SetAt(i, i);
  EXPECT_LT(storage.Taken(), 60);
  map.RemoveAll();
  EXPECT_TRUE(map.IsEmpty());
  map.SetAt(1, 1);
  EXPECT_EQ(map.GetCount(), 1);
}

TEST(CMap, InitHashTableMakesRoomAheadAndKeepsEntries) {
  NumberMap map;
  map.SetAt("a", 1);
  map.InitHashTable(10000);
  map.InitHashTable(0);
  map.InitHashTable(5, false);
  EXPECT_EQ(map["a"], 1);
}

TEST(CMap, AnswersAsAPlainMapDoes) {
  CMap<unsigned int, unsigned int, CString, const CString&> map;
  std::map<unsigned int, std::string> plain;
  std::mt19937 random(17);
  for (int round = 0; round < 20000; ++round) {
    const auto key = static_cast<unsigned int>(random() % 300 * 64);
    if (random() % 3 == 0) {
      ASSERT_EQ(map.RemoveKey(key), plain.erase(key) == 1);
    } else {
      plain[key] = std::to_string(round);
      map.SetAt(key, plain[key].c_str());
    }
    ASSERT_EQ(map.GetCount(), static_cast<int>(plain.size()));
  }
  for (const auto& [key, text] : plain)
    ASSERT_EQ(map[key], text.c_str());
}

TEST(CMap, TakesPointersAndStringsAsKeys) {
  int a = 0, b = 0;
  CMap<void*, void*, int, int> byAddress;
  byAddress.SetAt(&a, 1);
  byAddress.SetAt(&b, 2);
  EXPECT_EQ(byAddress[&a], 1);
  EXPECT_EQ(byAddress[&b], 2);
  CMap<CString, const CString&, int, int> byString;
  byString.SetAt("a", 1);
  EXPECT_EQ(byString[CString("a")], 1);
}

TEST(CMapStringToString, IsAskedWithCharacters) {
  CMapStringToString map;
  const CString value("value");
  map.SetAt("key", value);
  map["other"] = kBackslashTrails;
  CString found;
  const StorageCount storage;
  EXPECT_TRUE(map.Lookup("key", found));
  EXPECT_EQ(found.GetString(), value.GetString()) << "the value is shared";
  EXPECT_TRUE(map.Lookup(CString(), found) == false);
  EXPECT_EQ(storage.Taken(), 0);
  EXPECT_EQ(map["other"], kBackslashTrails);
}
