// Large files made to cost time: each is read to its end. Were time not linear, they would not be.
#include <gtest/gtest.h>

#include <string>

#include "recovery/DocumentFaults.h"
#include "tests/recovery/RecoveryFiles.h"

namespace {

class HostileFile : public testing::TestWithParam<const char*> {};

TEST_P(HostileFile, IsReadToItsEnd) {
#ifdef _WIN32
  constexpr std::size_t size = std::size_t{1} << 17;
#else
  constexpr std::size_t size = std::size_t{1} << 20;
#endif
  const std::string piece = GetParam();
  std::string file = "<Result><SymbolList DefaultIdx='0'>";
  while (file.size() < size)
    file += piece;
  tq::ListRecovery recovery(file);
  tq::RecoveredList list;
  std::size_t returned = 0;
  while (recovery.Next(list)) {
    EXPECT_LE(list.findings.size(), tq::kMostFindings);
    returned += list.name.size() + list.symbols.size();
  }
  EXPECT_LE(returned, 2 * file.size());
  EXPECT_FALSE(recovery.IsSound());
  EXPECT_LE(tq::DocumentFaults(file, 1000).size(), 1000U);
}

INSTANTIATE_TEST_SUITE_P(Of, HostileFile,
                         testing::Values("<List ID='", "<List ID='\n", "<!--", "<![CDATA[", "<?",
                                         "<!DOCTYPE", "&", "'", "=", "='", " ID='", " Name='x",
                                         "\xA4,", "\xFF", "</Result>", "<?xml ", "\n&List ",
                                         "<List ID='' Name='' Value='", "<List ", "<SymbolList ",
                                         "   \n", "<a>", "&#x0",
                                         "<List ID='a' Name='b' Value='c'/>",
                                         "\n<List ID='a' Name='\xA4' Value='c'/>"));

// Each of many openings would look for the one end of them all.
TEST(HostileFile, OneEndBehindManyOpenings) {
  for (const std::string opening : {"<!--", "<![CDATA["}) {
    std::string file;
    while (file.size() < std::size_t{1} << 20)
      file += opening;
    const auto outcome = recovery::Recover(file + "]]>-->", tq::TextEncoding::Big5);
    EXPECT_TRUE(outcome.lists.empty());
    EXPECT_TRUE(outcome.Has(tq::Fault::NoLists));
  }
}

} // namespace
