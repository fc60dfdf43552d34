// Nothing of the operating system stays open behind an operation, whichever way it ends.
#include "tests/support/HeldObjects.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/FileAccess.h"
#include "platform/framework/CString.h"
#include "platform/xml/XmlDocument.h"
#include "tests/platform/HookedSteps.h"
#include "tests/platform/TestSystem.h"

namespace {

using tqtest::Fate;
using tqtest::HookedSteps;
using tqtest::Step;
using tqtest::TestDirectory;

class HeldObjectsTest : public testing::Test {
protected:
  ~HeldObjectsTest() override { EXPECT_EQ(before_, HeldObjects()); }

  void Save(Step step, Fate fate, bool inPlace) {
    HookedSteps steps(directory_.File("SymbolList.xml").c_str(), [&](Step now) {
      if (now == step)
        return fate;
      return inPlace && now == Step::ReplaceTarget ? Fate::Refuse : Fate::Proceed;
    });
    tq::RunSave(steps, "lists", 5);
  }
  void Read(const std::string& path, std::size_t limit) {
    std::string bytes;
    tq::Files().ReadWholeFile(path.c_str(), limit, bytes);
  }

  const TestDirectory directory_{"data"};

private:
  const long before_ = HeldObjects();
};

TEST_F(HeldObjectsTest, WhatIsLeftOpenIsSeen) {
  const long before = HeldObjects();
  {
    const LeftOpen one;
    EXPECT_EQ(before + 1, HeldObjects());
  }
  EXPECT_EQ(before, HeldObjects());
}

TEST_F(HeldObjectsTest, ASaveThatFailsAtAnyStepHoldsNothing) {
  for (const bool inPlace : {false, true}) {
    for (const Step step : tqtest::kAllSteps) {
      for (const Fate fate : {Fate::Fail, Fate::Refuse, Fate::Short}) {
        SCOPED_TRACE(testing::Message() << static_cast<int>(step) << static_cast<int>(fate));
        const long before = HeldObjects();
        Save(step, fate, inPlace);
        ASSERT_EQ(before, HeldObjects());
      }
    }
  }
}

TEST_F(HeldObjectsTest, ReadsHoldNothing) {
  directory_.Write("SymbolList.xml", "lists");
  for (const std::size_t limit : {0U, 4U, 5U, 100U})
    Read(directory_.File("SymbolList.xml"), limit);
  Read(directory_.File("None.xml"), 100);
  Read(directory_.Path(), 100);
}

TEST_F(HeldObjectsTest, QuestionsAndNewNamesHoldNothing) {
  directory_.Write("SymbolList.xml", "lists");
  const std::string file = directory_.File("SymbolList.xml");
  const std::string other = directory_.File("Other.xml");
  tq::FileStamp stamp;
  for (const std::string& path : {file, other, directory_.Path()}) {
    tq::Files().StateOf(path.c_str(), stamp);
    tq::Files().FileExists(path.c_str());
    tq::Files().DirectoryExists(path.c_str());
  }
  tq::Files().RenameFile(file.c_str(), other.c_str());
  tq::Files().RenameFile(file.c_str(), other.c_str());
}

TEST_F(HeldObjectsTest, ADocumentHoldsNothingWhenItIsGone) {
  const std::string good =
      "<Result a='1'><List ID='x'>t<![CDATA[c]]><!--n--></List><List/></Result>";
  for (const std::string& text : {good, std::string("<Result>"), std::string(), good}) {
    tq::XmlDocument document;
    for (int again = 0; again < 2; ++again) {
      document.Load(text.data(), text.size());
      CString value;
      const tq::XmlElement root = document.Root();
      root.HasAttributes();
      root.Name(value);
      for (const tq::XmlElement& list : document.Select("/Result/List")) {
        tq::XmlElement copy = list;
        copy.Attribute("ID", value);
        copy.Attribute("none", value);
        copy.Text(value);
        copy = document.SelectSingle("/Result");
        copy = copy.Children("List").empty() ? tq::XmlElement() : copy.ChildNodes().front();
      }
    }
  }
}

} // namespace
