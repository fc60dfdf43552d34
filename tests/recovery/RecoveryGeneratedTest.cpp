// Many files whose names and symbols hold what no save escapes: what was stored comes back.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <random>
#include <string>
#include <string_view>
#include <vector>

#include "recovery/DocumentFaults.h"
#include "tests/recovery/RecoveryFiles.h"

namespace {

using recovery::Outcome;
using recovery::Recover;
using recovery::StoredList;

class Generator {
public:
  Generator(unsigned seed, bool big5) : random_(seed), big5_(big5) {}

  std::vector<StoredList> Lists() {
    std::vector<StoredList> lists(1 + Below(4));
    for (std::size_t i = 0; i < lists.size(); ++i)
      lists[i] = {"ID-" + std::to_string(i), Name(), Symbols()};
    return lists;
  }

private:
  std::size_t Below(std::size_t most) { return random_() % most; }

  std::string Name() {
    static constexpr std::array<std::string_view, 16> pieces = {
        "'", "&", "<", ">", "/", "=", " ", "\"", ",", "'/>", "</", "='", "' ", "a", "Name", "Z9"};
    std::string name;
    for (std::size_t left = Below(10); left > 0; --left)
      name += Below(2) == 0 ? std::string(pieces[Below(pieces.size())]) : Character();
    return name;
  }

  // Used often, and with every second byte that there is.
  std::string Character() {
    std::string character(2, static_cast<char>((big5_ ? 0xA4 : 0xB0) + Below(big5_ ? 30 : 39)));
    const bool low = big5_ && Below(2) == 0;
    character[1] = static_cast<char>(low ? 0x40 + Below(0x3F) : 0xA1 + Below(0x5E));
    return character;
  }

  std::string Symbols() {
    static constexpr std::array<std::string_view, 8> ids = {
        "2330.TW", "AT&T.NYSE", "O'R.NYSE", "A<B.TW", "0050.TW", "X", "600000.SH", "BRK/B.NYSE"};
    std::string symbols;
    for (std::size_t left = Below(5); left > 0; --left) {
      symbols += symbols.empty() ? "" : ",";
      symbols += Below(8) == 0 ? "H" + Character() + ":" + Name() : std::string(ids[Below(8)]);
    }
    return symbols;
  }

  std::mt19937 random_;
  const bool big5_;
};

struct Tally {
  int lists = 0;
  int same = 0;
};

// Each list comes back as it was stored, or something says that it does not. A name that makes
// another well-formed file is the exception: that file is sound.
void Check(const std::vector<StoredList>& lists, const std::string& file, const Outcome& outcome,
           Tally& tally) {
  const std::vector<StoredList> kept = outcome.Kept();
  int repaired = 0;
  int missing = 0;
  for (const tq::RecoveredList& list : outcome.lists)
    repaired += list.fate != tq::ListFate::Whole ? 1 : 0;
  for (const StoredList& list : lists)
    missing += std::find(kept.begin(), kept.end(), list) == kept.end() ? 1 : 0;
  EXPECT_TRUE(missing == 0 || repaired > 0 || !outcome.findings.empty() ||
              tq::DocumentFaults(file, 1).empty());
  tally.lists += static_cast<int>(lists.size());
  tally.same += static_cast<int>(lists.size()) - missing;
}

class RecoveryOfGenerated : public testing::TestWithParam<unsigned> {};

TEST_P(RecoveryOfGenerated, ReturnsWhatWasStored) {
#ifdef _WIN32
  constexpr unsigned files = 500;
#else
  constexpr unsigned files = 10000;
#endif
  Tally tally;
  for (unsigned i = 0; i < files; ++i) {
    const unsigned seed = GetParam() * files + i;
    const bool big5 = seed % 2 == 0;
    const std::vector<StoredList> lists = Generator(seed, big5).Lists();
    const std::string file = recovery::FileOf(lists, big5 ? "big5" : "gb2312");
    const auto encoding = big5 ? tq::TextEncoding::Big5 : tq::TextEncoding::Gbk;
    Check(lists, file, Recover(file, encoding), tally);
    ASSERT_FALSE(HasFailure()) << "seed " << seed << "\n" << file;
  }
  // The others hold what looks like the end of their own value.
  EXPECT_GT(tally.same, tally.lists / 100 * 97);
}

INSTANTIATE_TEST_SUITE_P(Batch, RecoveryOfGenerated, testing::Range(0U, 10U, 1U));

} // namespace
