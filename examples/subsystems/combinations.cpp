// Combination orders: a typed text becomes two legs with their sides, or is refused.
#include "Example.h"

int main(int argc, char** argv) {
  Begin(argc, argv);
  for (const char* typed :
       {"TXO22000/21000L6", "TXO21000L6/A7", "TXO21000L6:X6", "TXO21000X6:22000L6", "TXO21000L6-X6",
        "TXO21000/22000L6", "TXO21000L6"}) {
    COptFutID combination;
    CString first;
    CString second;
    char firstSide = ' ';
    char secondSide = ' ';
    constexpr int checked = 1;
    if (!combination.SeparateID(typed, 'B', first, firstSide, second, secondSide, checked)) {
      // An OptFutError: a terminal shows a text of its own for each.
      std::printf("%-20s refused: %d\n", typed, combination.GetErrorCode());
      continue;
    }
    std::printf("%-20s %c %s  %c %s\n", typed, firstSide, first.GetString(), secondSide,
                second.GetString());
  }

  // The description that an order page shows. It has the years in it that the digits mean now.
  COptFutID combination;
  CString text;
  char side = ' ';
  Expect(combination.MergeID(text, side, "TXO22000L6", 'S', "TXO21000L6", 'B', 1) != 0, "merged");
  Expect(text.Find("S 22000 CALL - B 21000 CALL") != -1 && side == 'B', "its description");
}
