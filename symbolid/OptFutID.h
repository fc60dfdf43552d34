// COptFutID: combination orders of two legs on exchange-listed options and futures. It splits a
// typed combination into legs and sides, checks that two legs form a combination that the exchange
// accepts, and writes a description for the user.
//
// Conventions that hold for the whole class
//  1. All calls come from the terminal's user-interface thread, as the service is asked.
//  2. Text is in the process's ANSI code page. Codes are compared as they are: in upper case.
//  3. An option code has ten characters: three of the commodity (A-Z, 0-9), five digits of the
//     strike with leading zeros, the month letter (A to L January to December of a call, M to X of
//     a put), the last digit of the expiry year. "TXO21000L6" is the December call at 21000. A
//     futures code has the commodity, a month letter A to L and the digit of the year: "TXFL6".
//  4. The digit means the current year of the local calendar if that ends in it, else the next
//     year, also for a past digit: no contract runs longer.
//  5. A side is "B" (buy) or "S" (sell).
//  6. Results are int: non-zero for success, 0 for failure. After a failure GetErrorCode tells why
//     and all outputs are unchanged. Outputs may be the same objects as inputs. Nothing throws.
//     Texts of any length and content are accepted, also with `check` 0: parts that a code lacks
//     are then missing in the result.
#pragma once

#include <cstdint>

#include "platform/framework/CString.h"
#include "tqSymbolApi.h"

class CSymbolTableMgr;

// Why a check failed. Terminals show texts by these numbers: do not change them.
enum OptFutError : int {
  OptFutNoError = 0,
  OptFutNotACombination = 1,  // no separator; ids of futures missing or too short
  OptFutBadCommodity = 3,     // commodity characters that are no letters or digits
  OptFutUnreadableCode = 4,   // a NUL or a double-byte character in the strike
  OptFutBadMonth = 5,         // month letter of neither a call nor a put
  OptFutBadYear = 6,          // year position is no digit
  OptFutBadSide = 8,          // side is not "B" or "S"
  OptFutSameKindSameSide = 9, // two calls or two puts on one side
  OptFutStrikesDiffer = 11,   // together with the months, or of a call and a put on opposite sides
  OptFutCallStrikeNotHigher = 12, // of calls the first strike must be higher
  OptFutPutStrikeNotLower = 13,  // of puts the first strike must be lower; see ChkTwoCommID as well
  OptFutTooFarApart = 14,        // months more than a year apart
  OptFutMonthsDiffer = 15,       // legs not in one month
  OptFutFirstMonthLater = 16,    // the first leg's month must not be the later one
  OptFutFirstNotCall = 17,       // the first leg must be a call
  OptFutFirstNotPut = 18,        // the first leg must be a put
  OptFutCommoditiesDiffer = 19,  // legs of different commodities
  OptFutSpreadLength = 100,      // the texts around "/" are of no spread's lengths
  OptFutStraddleLength = 101,    // the texts around ":" are of no straddle's or strangle's
  OptFutReversalLength = 102,    // the texts around "-" are of no reversal's or conversion's
  OptFutSpreadKindsDiffer = 103, // a time spread of a call and a put
  OptFutKindsEqual = 104,        // the legs must be one call and one put
};

class TQSYMBOL_API COptFutID {
public:
  // Error code 0.
  COptFutID() noexcept;

  // An OptFutError: that of the latest check that failed with one. Success does not reset it, and
  // an option code that is not ten characters long fails without one.
  int GetErrorCode() const noexcept;

  // Splits a typed combination, blanks around it ignored, into two full codes.
  //   "TXO22000/21000L6"  price spread: commodity and strike, then strike and month code
  //   "TXO21000L6/A7"     time spread: a code, then the other month code
  //   "TXO21000L6:X6"     straddle: a call, then the put's month code
  //   "TXO21000X6:22000L6" strangle: a put, then the call's strike and month code
  //   "TXO21000L6-X6"     reversal or conversion: a call, then the put's month code
  // The text is split at its first "/", without one at its first ":", then at its first "-". A
  // separator at the start of the text does not count. `side` is the side of the second leg; the
  // first has the same side around ":", else the opposite one ("B" for anything but "B").
  //
  // With `check` non-zero the legs must form a combination that the exchange accepts (ChkSpread,
  // ChkStraddle_Strangle, ChkReversals_Conversion). With 0 they are completed by their lengths
  // alone: a first text whose last character but one is a digit (so that it has no month code)
  // takes over the second's last two; a second of 7 characters takes over the first three of the
  // first leg, any other the first eight.
  int SeparateID(const CString& id, char side, CString& id1, char& side1, CString& id2, char& side2,
                 int check) noexcept;

  // Writes the description of a combination of two option codes to `text` and side2 to `side`.
  //   "TXO 202612 S 22000 CALL - B 21000 CALL"   one month, two strikes
  //   "TXO 202612 21000 B CALL - S PUT"          a call and a put that are not such: the first's
  //                                              month and strike
  //   "TXO CALL S 202612 - B 202701"             two months; the strike is left out
  // Fails with 19 for different commodities and, with `check` non-zero, for what ChkCommID refuses.
  // SeparateID holds combinations to other rules; combination-ids.md lists the differences.
  int MergeID(CString& text, char& side, const CString& id1, char side1, const CString& id2,
              char side2, int check) noexcept;

  // The same in one form for all combinations, blanks around the ids ignored:
  //   "TXO S 202612TF TX1 22000 CALL - B 202612TF TX1 21000 CALL"
  // Behind each month stands the exchange of the leg (field 113 of `tables`), then its short name
  // as the service has it, strike and kind. Exchange and short name are left out for a leg that the
  // service does not know, when it has no answer, and when `tables`, which stays the caller's, is
  // null. With `check` 0 the words CALL and PUT are left out, the blanks around them are not.
  int MergeID2(CString& text, char& side, const CString& id1, char side1, const CString& id2,
               char side2, int check, CSymbolTableMgr* tables) noexcept;

  // Writes the description of a calendar spread of two futures codes: "TXF S 202612 - B 202701",
  // the nearer month first (of equal ones `id1`), each with the text of its week behind it
  // ("202612W2") when the service has one. `side` becomes the later leg's. The commodity is that of
  // `id1`; what `id2` is of is not looked at. Fails with 1 unless both have 5 characters or more.
  int MergeFuturID(CString& text, char& side, const CString& id1, char side1, const CString& id2,
                   char side2) noexcept;

  // The week of a contract, by the service's own id (VLGetZUID): its number, 0 when there is none,
  // its text ("W2"), and in `extra` the strike as the service writes it. All three are emptied
  // first. Returns whether the service has a record of the contract.
  int GetFutureWeek(const CString& id, int& week, CString& weekText, CString& extra) noexcept;

protected:
  // Checks. Each returns 1 when passed and else stores its error.

  // Both sides are "B" or "S"; error 8.
  int ChkBS(char side1, char side2) noexcept;
  // One option code, looked at from left to right; errors 3, 4, 5, 6. That strikes are digits is
  // not asked here: other text has no order and fails where strikes are compared.
  int ChkCommIDFormat(const CString& code) noexcept;
  // Two full legs: the format of each, the sides, then ChkTwoCommID.
  int ChkCommID(const CString& id1, char side1, const CString& id2, char side2) noexcept;
  // Two full legs whose formats and sides are right. Strikes are those that the service lists, when
  // it has both and both are plain decimal numbers ("52.5"), else the five digits of the codes.
  //   a call and a put   one month (15); on one side the first strike equal or higher (13), on
  //                      opposite sides equal (11); with equal strikes the call first (17)
  //   one kind           opposite sides (9); in one month with two strikes the first strike higher
  //                      of calls (12), lower of puts (13); in two months one strike (11) and the
  //                      first month earlier (14, 16)
  // The same contract twice, on opposite sides, passes.
  int ChkTwoCommID(const CString& id1, char side1, const CString& id2, char side2) noexcept;
  // The texts around the separator of a typed combination. Passed, `id1` and `id2` are the legs.
  int ChkSpread(const CString& first, const CString& second, CString& id1, CString& id2) noexcept;
  int ChkStraddle_Strangle(const CString& first, const CString& second, CString& id1,
                           CString& id2) noexcept;
  // Months are not compared here.
  int ChkReversals_Conversion(const CString& first, const CString& second, CString& id1,
                              CString& id2) noexcept;
  // Whether two month letters are of one kind (GetCallPut). Unlike the others it stores no error:
  // whether the kinds have to be the same or to differ is the caller's, and so is the code for it
  // (103, 104).
  int ChkTheSameCP(char month1, char month2) noexcept;
  // Two month codes are of one month, be they a call's or a put's; error 15.
  int ChkTheSameMonth(const CString& month1, const CString& month2) noexcept;

  // Two month codes of one kind: 0 the same, 1 the first earlier, 2 the first later, -1 more than a
  // year apart. A year 9 is before a year 0.
  int ChkMonth_Rule(const CString& month1, const CString& month2) noexcept;
  // Two strikes as decimal numbers: 0 equal, 1 the first higher, 2 the first lower, -1 when one of
  // them is no number.
  int ChkPrice_Rule(const CString& price1, const CString& price2) noexcept;

  // "C" for a month letter of a call, "P" of a put, a blank for any other.
  char GetCallPut(char month) noexcept;

  // The short name of an option, with a blank at its end, by the service's own id. 0, with `out`
  // empty, when the service has none.
  int GetShortID(CString& out, const CString& id) noexcept;

private:
  // Stores an error; returns 1 when there is none to store, else 0.
  int Report(OptFutError error);
  // The format of both, the first failure counts.
  int ChkTwoFormats(const CString& id1, const CString& id2);

  std::int32_t errorCode_;
};
