// The import of an older product's lists and the extra texts, in detail.
#include "tests/interface/EditTest.h"

namespace {

class ImportTextTest : public EditTest {
protected:
  void SetUp() override { StartWith({}); }
  int Import(const std::string& nodes, int product) {
    directory.Write("Any.xml", "<HaldeUserList>" + nodes + "</HaldeUserList>");
    CString path = directory.Joined("Any.xml").c_str();
    return manager.DoLoadOtherProductList(path, product) != 0 ? 1 : 0;
  }
  std::string Ids() {
    std::string ids;
    for (int i = 0; i < manager.GetSymbolListCount(1); ++i)
      ids += (i > 0 ? "|" : "") + IdAt(i);
    return ids;
  }
  std::string Tags() {
    std::string tags;
    for (const CString& tag : manager.GetExtraTQInfo())
      tags += std::string(tag) + "|";
    return tags;
  }
};

TEST_F(ImportTextTest, EveryProductHasItsIds) {
  const std::string node = "<L><IDs>2330.TW</IDs></L>";
  EXPECT_EQ(Import(node, 0), 1);
  EXPECT_EQ(Import(node, 1), 1);
  EXPECT_EQ(Import(node, 2), 1);
  EXPECT_EQ(Ids(), "PellarPlus 1|eOrvel 1|eTamsin 1");
  for (int i = 0; i < 3; ++i) {
    const std::string name = NameAt(i);
    EXPECT_EQ(name.substr(name.size() - 2), " 1");
  }
}

TEST_F(ImportTextTest, NodesWithoutIdsLeaveGapsInTheNumbers) {
  EXPECT_EQ(Import("<L><IDs>2330.TW</IDs></L><L><IDs></IDs></L><L><IDs>2317.TW</IDs></L>"
                   "<L/><Other Name='x'><Name>n</Name><IDs>1101.TW</IDs></Other>",
                   1),
            1);
  EXPECT_EQ(Ids(), "eOrvel 1|eOrvel 3|eOrvel 5");
  EXPECT_EQ(Rows("eOrvel 5"), "1101.TW");
}

TEST_F(ImportTextTest, ImportedListsStandBehindTheUsers) {
  StartWith({"a/A/2454.TW"});
  Import("<L><IDs>2330.TW,2317.TW</IDs></L>", 1);
  EXPECT_EQ(Ids(), "a|eOrvel 1");
  ExpectNotified(1, 40, "");
}

TEST_F(ImportTextTest, AnImportOfAnotherFormAddsNothing) {
  directory.Write("Any.xml", "<Other><L><IDs>2330.TW</IDs></L></Other>");
  CString path = directory.Joined("Any.xml").c_str();
  manager.DoLoadOtherProductList(path, 1);
  directory.Write("Any.xml", "<HaldeUserList><L>");
  EXPECT_EQ(manager.DoLoadOtherProductList(path, 1), 0);
  path = directory.Joined("Missing.xml").c_str();
  EXPECT_EQ(manager.DoLoadOtherProductList(path, 1), 0);
  path = "";
  EXPECT_EQ(manager.DoLoadOtherProductList(path, 1), 0);
  EXPECT_EQ(Ids(), "");
  ExpectNotNotified();
}

TEST_F(ImportTextTest, AMalformedFileKeepsItsName) {
  directory.Write("OldOTVList.xml", "<HaldeUserList><L>");
  EXPECT_EQ(manager.LoadOtherProductList(), 0);
  EXPECT_TRUE(directory.Exists("OldOTVList.xml"));
  EXPECT_FALSE(directory.Exists("Added_OldOTVList.xml"));
  directory.Write("OldOTVList.xml", "<HaldeUserList><L><IDs>2330.TW</IDs></L></HaldeUserList>");
  EXPECT_NE(manager.LoadOtherProductList(), 0);
  EXPECT_EQ(Ids(), "eOrvel 1");
  EXPECT_FALSE(directory.Exists("OldOTVList.xml"));
  EXPECT_TRUE(directory.Exists("Added_OldOTVList.xml"));
  EXPECT_EQ(manager.LoadOtherProductList(), 0);
  EXPECT_EQ(Ids(), "eOrvel 1");
}

TEST_F(ImportTextTest, AListOfThatIdAndNameGetsTheSymbolsAndARenamedOneIsSkipped) {
  Import("<L><IDs>2330.TW</IDs></L>", 1);
  EXPECT_EQ(Import("<L><IDs>2317.TW</IDs></L>", 1), 1);
  EXPECT_EQ(Ids(), "eOrvel 1");
  EXPECT_EQ(Rows("eOrvel 1"), "2317.TW");
  StartWith({"eOrvel 1/Mine/2454.TW"});
  EXPECT_EQ(Import("<L><IDs>2330.TW</IDs></L><L><IDs>1101.TW</IDs></L>", 1), 1);
  EXPECT_EQ(Ids(), "eOrvel 1|eOrvel 2");
  EXPECT_EQ(Rows("eOrvel 1"), "2454.TW");
}

TEST_F(ImportTextTest, AStartImportsBehindTheSystemLists) {
  directory.Write("OldOTVList.xml", "<HaldeUserList><L><IDs>2330.TW</IDs></L></HaldeUserList>");
  CStringArray names;
  names.Add("S1");
  ASSERT_EQ(manager.Init(directory.Path().c_str(), 0, 1, 1, &names, 0, 1), 1);
  const int count = manager.GetSymbolListCount(1);
  ASSERT_GT(count, 1);
  EXPECT_EQ(IdAt(count - 1), "eOrvel 1");
  EXPECT_EQ(manager.GetSymbolListCount(6), 1);
  EXPECT_EQ(manager.GetGroupIdx(201), 22);
}

TEST_F(ImportTextTest, ExtraTextsKeepTheirOrderAndStandOnce) {
  manager.AddExtraTQInfo("");
  manager.AddExtraTQInfo("b");
  manager.AddExtraTQInfo("a");
  manager.AddExtraTQInfo("b");
  manager.AddExtraTQInfo("B");
  EXPECT_EQ(Tags(), "b|a|B|");
  manager.RemoveExtraTQInfo("");
  manager.RemoveExtraTQInfo("none");
  manager.RemoveExtraTQInfo("b");
  EXPECT_EQ(Tags(), "a|B|");
  manager.AddExtraTQInfo("b");
  EXPECT_EQ(Tags(), "a|B|b|");
}

} // namespace
