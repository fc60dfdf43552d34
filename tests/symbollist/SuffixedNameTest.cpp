// Names with a suffix that grows.
#include "symbollist/ListName.h"

#include <algorithm>
#include <string>
#include <vector>

#include <gtest/gtest.h>

namespace {

// The name that is found when so many candidates are taken, and the candidates themselves.
std::string Name(const std::string& wanted, size_t taken, std::vector<std::string>& tried) {
  tried.clear();
  const CString name = tq::SuffixedName(wanted.c_str(), "-ab", [&](const CString& candidate) {
    tried.push_back(candidate.GetString());
    return tried.size() <= taken;
  });
  return name.GetString();
}

TEST(SuffixedName, AFreeNameStays) {
  std::vector<std::string> tried;
  EXPECT_EQ(Name("name", 0, tried), "name");
  EXPECT_EQ(tried, std::vector<std::string>{"name"});
}

TEST(SuffixedName, EachAttemptPutsOneMoreBehind) {
  std::vector<std::string> tried;
  EXPECT_EQ(Name("n", 1, tried), "n-ab");
  EXPECT_EQ(Name("n", 4, tried), "n-ab-ab-ab-ab");
  EXPECT_EQ(tried,
            (std::vector<std::string>{"n", "n-ab", "n-ab-ab", "n-ab-ab-ab", "n-ab-ab-ab-ab"}));
}

TEST(SuffixedName, TheFifthIsTheLast) {
  std::vector<std::string> tried;
  EXPECT_EQ(Name("n", 99, tried), "n-ab-ab-ab-ab-ab");
  EXPECT_EQ(tried.size(), 5u); // the last candidate is the caller's to test
}

TEST(SuffixedName, ALongNameIsTriedAsItIsKept) {
  std::vector<std::string> tried;
  const std::string wanted(70, 'n');
  EXPECT_EQ(Name(wanted, 0, tried), wanted.substr(0, 64));
  EXPECT_EQ(tried[0], wanted.substr(0, 64));
}

TEST(SuffixedName, LongNamesAreShortenedSoThatNoTwoCandidatesAreOne) {
  std::vector<std::string> tried;
  const std::string wanted(64, 'n');
  EXPECT_EQ(Name(wanted, 2, tried), wanted.substr(0, 58) + "-ab-ab");
  Name(wanted, 99, tried);
  std::sort(tried.begin(), tried.end());
  EXPECT_EQ(std::unique(tried.begin(), tried.end()), tried.end());
}

TEST(SuffixedName, ACharacterIsNotSplit) {
  std::vector<std::string> tried;
  std::string wanted;
  for (int i = 0; i < 32; ++i)
    wanted += "\xB3\x5C";
  EXPECT_EQ(Name(wanted, 1, tried), wanted.substr(0, 60) + "-ab");
}

} // namespace
