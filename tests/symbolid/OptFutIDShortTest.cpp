// COptFutID: every text of up to twelve characters over small alphabets has a defined result. The
// sanitizers report reads out of bounds.
#include "tests/symbolid/CombinationTest.h"

#include <set>

namespace {

const std::set<int> kAllErrors = {0,  1,  3,  4,  5,  6,  8,   9,   11,  12,  13,
                                  14, 15, 16, 17, 18, 19, 100, 101, 102, 103, 104};

// Visits all texts of `least` to `most` characters.
template <class Visit>
void ForEachText(std::string_view alphabet, std::size_t least, std::size_t most, Visit visit) {
  for (std::size_t length = least; length <= most; ++length) {
    std::vector<std::size_t> at(length, 0);
    std::string text(length, alphabet[0]);
    for (;;) {
      visit(text);
      std::size_t i = 0;
      while (i < length && ++at[i] == alphabet.size()) {
        at[i] = 0;
        text[i++] = alphabet[0];
      }
      if (i == length)
        break;
      text[i] = alphabet[at[i]];
    }
  }
}

CString Text(const std::string& text) {
  return CString(text.data(), static_cast<int>(text.size()));
}

// What SeparateID makes of a single-byte text without a check: "<leg> <side> <leg> <side>", side B.
std::string Unchecked(const std::string& text) {
  for (const char mark : {'/', ':', '-'}) {
    const std::size_t at = text.find(mark);
    if (at == std::string::npos || at == 0)
      continue;
    const std::string first = text.substr(0, at);
    const std::string second = text.substr(at + 1);
    const bool noMonth = at >= 2 && first[at - 2] >= '0' && first[at - 2] <= '9';
    const std::string tail = second.substr(second.size() < 2 ? 0 : second.size() - 2);
    const std::string leg1 = noMonth ? first + tail : first;
    const std::string leg2 = leg1.substr(0, second.size() == 7 ? 3 : 8) + second;
    return leg1 + (mark == ':' ? " B " : " S ") + leg2 + " B";
  }
  return "error 1";
}

class OptFutIDShort : public CombinationTest {
protected:
  OptFutIDShort() { standin::RecordCalls(false); }

  static std::string Separate(const CString& text, int check) {
    COptFutID id;
    CString id1;
    CString id2;
    char side1 = '1';
    char side2 = '2';
    if (!id.SeparateID(text, 'B', id1, side1, id2, side2, check)) {
      EXPECT_TRUE(id1.IsEmpty() && id2.IsEmpty() && side1 == '1' && side2 == '2');
      EXPECT_TRUE(kAllErrors.contains(id.GetErrorCode()));
      return "error " + std::to_string(id.GetErrorCode());
    }
    if (check) {
      EXPECT_TRUE(id1.GetLength() == 10 && id2.GetLength() == 10);
    }
    return std::string(id1) + " " + side1 + " " + id2.GetString() + " " + side2;
  }

  // All operations that take two ids; each must give a text, or an error and no text.
  static void Merge(const CString& id1, const CString& id2) {
    for (int operation = 0; operation < 5; ++operation) {
      COptFutID id;
      CString text;
      char side = '?';
      int merged = 0;
      if (operation < 2)
        merged = id.MergeID(text, side, id1, 'S', id2, 'B', operation);
      else if (operation < 4)
        merged = id.MergeID2(text, side, id1, 'S', id2, 'B', operation - 2, nullptr);
      else
        merged = id.MergeFuturID(text, side, id1, 'S', id2, 'B');
      EXPECT_EQ(merged != 0, !text.IsEmpty());
      EXPECT_EQ(merged != 0, side == 'B' || side == 'S');
      EXPECT_TRUE(kAllErrors.contains(id.GetErrorCode()));
    }
  }
};

TEST_F(OptFutIDShort, EveryTextOfTwoLettersIsSeparated) {
  for (const char* alphabet : {"A/", "1:", "M-"})
    ForEachText(alphabet, 0, 12, [](const std::string& text) {
      EXPECT_EQ(Separate(Text(text), 0), Unchecked(text)) << text;
      Separate(Text(text), 1);
    });
}

TEST_F(OptFutIDShort, EveryTextOfAllKindsOfLettersIsSeparated) {
  ForEachText("A1/:-", 0, 5, [](const std::string& text) {
    EXPECT_EQ(Separate(Text(text), 0), Unchecked(text)) << text;
    Separate(Text(text), 1);
  });
}

TEST_F(OptFutIDShort, EveryTextWithNulsAndHalvesOfCharactersIsSeparated) {
  using namespace std::string_literals;
  ForEachText("A/\0\xA4\x5C"s, 0, 5, [](const std::string& text) {
    Separate(Text(text), 0);
    Separate(Text(text), 1);
  });
}

TEST_F(OptFutIDShort, EverySecondTextIsCompletedAndChecked) {
  // What stands behind the separator of a code, and of a commodity with a strike.
  for (const char* head : {"TXO21000A6", "TXO21000M6", "TXO21000"})
    for (const char* mark : {"/", ":", "-"})
      ForEachText("2M", 0, 8, [&](const std::string& tail) {
        Separate(Text(std::string(head) + mark + tail), 1);
      });
}

TEST_F(OptFutIDShort, EveryIdIsMergedWithItselfAndWithAWholeCode) {
  for (const char* alphabet : {"A1", "M\xA4"})
    ForEachText(alphabet, 0, 10, [](const std::string& text) {
      const CString id = Text(text);
      Merge(id, id);
      Merge(id, "AAA11111A6");
      Merge("111AAAAAM6", id);
    });
}

TEST_F(OptFutIDShort, EveryTwoShortIdsAreMerged) {
  using namespace std::string_literals;
  ForEachText("A1\0"s, 0, 3, [](const std::string& one) {
    ForEachText("A1\0"s, 0, 3, [&one](const std::string& two) { Merge(Text(one), Text(two)); });
  });
}

TEST_F(OptFutIDShort, EveryCodeHasAFormat) {
  using namespace std::string_literals;
  for (const std::string& alphabet : {"A1"s, "1\xA4"s, "M\0"s})
    ForEachText(alphabet, 9, 11, [](const std::string& text) {
      Checks id;
      const int passed = id.ChkCommIDFormat(Text(text));
      EXPECT_TRUE(text.size() == 10 || !passed);
      EXPECT_EQ(passed || text.size() != 10, id.GetErrorCode() == 0);
      if (passed) {
        EXPECT_TRUE(text[8] >= 'A' && text[8] <= 'X' && text[9] >= '0' && text[9] <= '9');
      }
    });
}

} // namespace
