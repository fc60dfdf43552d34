// Reading another product's lists, and setting their file aside.
#include "imports/ImportFile.h"

#include <string>

#include "platform/FileAccess.h"
#include "terminal/StandIn.h"
#include "tests/support/StandInTest.h"
#include "tests/support/TempDir.h"

namespace {

class ImportFileTest : public StandInTest {
protected:
  bool Read(const std::string& text, int product = 1) {
    directory.Write("Import.xml", text);
    return tq::ReadImportFile(Path("Import.xml").c_str(), product, lists);
  }
  // "id/name/symbols|..."
  std::string Shape(const std::string& inner) {
    EXPECT_TRUE(Read("<HaldeUserList>" + inner + "</HaldeUserList>"));
    std::string shape;
    for (const tq::ImportedList& list : lists)
      shape += (shape.empty() ? "" : "|") + std::string(list.id) + "/" + list.name.GetString() +
               "/" + list.symbols.GetString();
    return shape;
  }
  std::string Path(const char* name) { return directory.Joined(name); }

  TempDir directory;
  std::vector<tq::ImportedList> lists;
};

TEST_F(ImportFileTest, ListsAreNumberedFromOne) {
  EXPECT_EQ(Shape("<List><IDs>2330.TW,2317.TW</IDs></List><List><IDs>1101.TW</IDs></List>"),
            "eOrvel 1/eOrvel 1/2330.TW,2317.TW|eOrvel 2/eOrvel 2/1101.TW");
}

TEST_F(ImportFileTest, EachProductHasItsNames) {
  const std::string file = "<HaldeUserList><L><IDs>A</IDs></L></HaldeUserList>";
  const char* names[] = {"PellarPlus 1", "eOrvel 1", "eTamsin 1"};
  for (int product = 0; product < 3; ++product) {
    ASSERT_TRUE(Read(file, product));
    ASSERT_EQ(lists.size(), 1u);
    EXPECT_STREQ(lists[0].id, names[product]);
    EXPECT_STREQ(lists[0].name, names[product]);
  }
}

TEST_F(ImportFileTest, OtherProductsAreRefused) {
  const std::string file = "<HaldeUserList><L><IDs>A</IDs></L></HaldeUserList>";
  for (int product : {-1, 3, 1000}) {
    EXPECT_FALSE(Read(file, product));
    EXPECT_TRUE(lists.empty());
  }
}

TEST_F(ImportFileTest, ANodeWithoutIdsKeepsItsNumber) {
  EXPECT_EQ(Shape("<L><IDs>A</IDs></L><L><IDs></IDs></L><L><IDs>C</IDs></L>"),
            "eOrvel 1/eOrvel 1/A|eOrvel 3/eOrvel 3/C");
  EXPECT_EQ(Shape("<L/><L>text</L><L><Ids>A</Ids></L><L><IDs>D</IDs></L>"), "eOrvel 4/eOrvel 4/D");
}

TEST_F(ImportFileTest, EveryKindOfNodeCountsButLayoutDoesNot) {
  EXPECT_EQ(Shape("\n\t<L><IDs>A</IDs></L>\n\t<!-- a remark -->\n\t<L><IDs>C</IDs></L>\r\n"),
            "eOrvel 1/eOrvel 1/A|eOrvel 3/eOrvel 3/C");
  EXPECT_EQ(Shape("<?old product?><L><IDs>B</IDs></L>"), "eOrvel 2/eOrvel 2/B");
  EXPECT_EQ(Shape("stray<L><IDs>B</IDs></L>"), "eOrvel 2/eOrvel 2/B");
  EXPECT_EQ(Shape("<![CDATA[x]]><L><IDs>B</IDs></L>"), "eOrvel 2/eOrvel 2/B");
}

TEST_F(ImportFileTest, NodesOfAnyNameAreListsAndOtherChildrenAreNotRead) {
  EXPECT_EQ(Shape("<Any name='x'><Other>Z</Other><IDs a='b'>A</IDs><IDs>B</IDs></Any>"),
            "eOrvel 1/eOrvel 1/A");
}

TEST_F(ImportFileTest, BlanksAroundTheIdsAreNoIds) {
  EXPECT_EQ(Shape("<L><IDs>\n  2330.TW\n</IDs></L><L><IDs> \n </IDs></L>"),
            "eOrvel 1/eOrvel 1/2330.TW");
}

TEST_F(ImportFileTest, IdsThatTheListFileCannotCarryAreLeftOut) {
  EXPECT_EQ(Shape("<L><IDs>A,it&apos;s,B&amp;C,D,&lt;E</IDs></L><L><IDs>&amp;</IDs></L>"),
            "eOrvel 1/eOrvel 1/A,D");
}

TEST_F(ImportFileTest, ADocumentOfAnotherKindHasNoLists) {
  EXPECT_TRUE(Read("<Other><L><IDs>A</IDs></L></Other>"));
  EXPECT_TRUE(lists.empty());
  EXPECT_TRUE(Read("<HaldeUserList/>"));
  EXPECT_TRUE(lists.empty());
}

TEST_F(ImportFileTest, MissingAndMalformedFilesAreRefused) {
  EXPECT_FALSE(tq::ReadImportFile(Path("None.xml").c_str(), 1, lists));
  EXPECT_FALSE(tq::ReadImportFile("", 1, lists));
  EXPECT_FALSE(tq::ReadImportFile(directory.Path().c_str(), 1, lists));
  for (const char* text : {"", "x", "<HaldeUserList>", "<HaldeUserList><L></HaldeUserList>",
                           "<HaldeUserList><L><IDs>A&B</IDs></L></HaldeUserList>"}) {
    EXPECT_FALSE(Read(text)) << text;
    EXPECT_TRUE(lists.empty());
  }
}

TEST_F(ImportFileTest, IdsInTheProcessesCodePageComeOutAsTheyAre) {
  const std::string heading = standin::ToAnsi("電子") + ":";
  const std::string file = std::string("<?xml version='1.0' encoding='utf-8'?>") +
                           "<HaldeUserList><L><IDs>電子:,2330.TW</IDs></L></HaldeUserList>";
  ASSERT_TRUE(Read(file));
  EXPECT_STREQ(lists[0].symbols, (heading + ",2330.TW").c_str());
}

// A file of the same bytes beside it is no proof: the user may have exported the same lists again.
TEST_F(ImportFileTest, AFileOfTheSameBytesDoesNotMeanImported) {
  directory.Write("Old.xml", "<a/>");
  EXPECT_FALSE(tq::IsImported(Path("Old.xml").c_str(), Path("Added.xml").c_str()));
  directory.Write("Added.xml", "<a/>");
  EXPECT_FALSE(tq::IsImported(Path("Old.xml").c_str(), Path("Added.xml").c_str()));
}

TEST_F(ImportFileTest, SettingAsideTakesThePlaceOfAnOlderImport) {
  directory.Write("Old.xml", "new");
  directory.Write("Added.xml", "older");
  tq::SetAside(Path("Old.xml").c_str(), Path("Added.xml").c_str());
  EXPECT_EQ(directory.Names(), std::vector<std::string>{"Added.xml"});
  EXPECT_EQ(directory.Read("Added.xml"), "new");
}

} // namespace
