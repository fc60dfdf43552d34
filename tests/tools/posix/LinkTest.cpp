// What is written under the name of a symbolic link goes where the link points, as the library's
// own saves do.
#include "tests/tools/ToolTest.h"

namespace {

using std::filesystem::perms;

class ListsLink : public ToolTest {
protected:
  ListsLink() : file_(ListFile("big5", 0, ListLine("1", "a", "2330.TW"))) {}

  // `name` is a link to `target`.
  void Link(const std::string& name, const std::string& target) const {
    std::filesystem::create_symlink(target, Path(name));
  }
  bool IsLink(const std::string& name) const {
    return std::filesystem::is_symlink(std::filesystem::symlink_status(Path(name)));
  }
  int Write(const std::string& name, bool force) {
    std::vector<std::string> words{"repair", Put("a.xml", file_), "-o", Path(name)};
    if (force)
      words.push_back("--force");
    return Run(words);
  }

  const std::string file_;
};

TEST_F(ListsLink, TheFileThatItNamesIsReplacedAndTheLinkStays) {
  std::filesystem::create_directory(Path("real"));
  Put("real/file.xml", "of before");
  std::filesystem::permissions(Path("real/file.xml"), perms::owner_read | perms::owner_write);
  Link("link.xml", "real/file.xml");
  Link("second.xml", Path("link.xml"));
  for (const char* name : {"link.xml", "second.xml"}) {
    Put("real/file.xml", "of before");
    EXPECT_EQ(Write(name, false), 2);
    EXPECT_EQ(Get("real/file.xml"), "of before");
    EXPECT_EQ(Write(name, true), 0) << streams.err;
    EXPECT_EQ(Get("real/file.xml"), file_);
    EXPECT_TRUE(IsLink("link.xml"));
    EXPECT_TRUE(IsLink("second.xml"));
    EXPECT_EQ(std::filesystem::status(Path("real/file.xml")).permissions(),
              perms::owner_read | perms::owner_write);
  }
  EXPECT_EQ(CountFiles(), 4u) << "something was left beside a link";
}

TEST_F(ListsLink, ALinkToNothingStaysAndItsFileComesIntoBeing) {
  for (const bool force : {false, true}) {
    std::filesystem::remove(Path("link.xml"));
    std::filesystem::remove(Path("file.xml"));
    Link("link.xml", "file.xml");
    EXPECT_EQ(Write("link.xml", force), 0) << streams.err;
    EXPECT_TRUE(IsLink("link.xml"));
    EXPECT_FALSE(IsLink("file.xml"));
    EXPECT_EQ(Get("file.xml"), file_);
  }
}

TEST_F(ListsLink, LinksInACircleAreNotWritten) {
  Link("one.xml", "two.xml");
  Link("two.xml", "one.xml");
  EXPECT_NE(Write("one.xml", false), 0);
  EXPECT_TRUE(IsLink("one.xml"));
  EXPECT_TRUE(IsLink("two.xml"));
}

TEST_F(ListsLink, AFileThatIsReadIsNotReplacedByWayOfALink) {
  Link("link.xml", "a.xml");
  EXPECT_EQ(Write("link.xml", true), 2);
  EXPECT_EQ(Get("a.xml"), file_);
  EXPECT_TRUE(IsLink("link.xml"));
}

} // namespace
