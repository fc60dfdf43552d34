// The fixture of the tests of combination ids: the small market in a year that the test sets.
#pragma once

#include <string>

#include "platform/System.h"
#include "platform/services/VLRecords.h"
#include "symbolid/OptFutID.h"
#include "tests/support/StandInTest.h"

class CombinationTest : public StandInTest {
protected:
  CombinationTest() : previous_(tq::SetClock(&FirstDay)) { year_ = 2026; }
  ~CombinationTest() override { tq::SetClock(previous_); }

  static void LiveIn(int year) { year_ = year; }

  // Makes the protected checks callable.
  struct Checks : COptFutID {
    using COptFutID::ChkBS;
    using COptFutID::ChkCommID;
    using COptFutID::ChkCommIDFormat;
    using COptFutID::ChkMonth_Rule;
    using COptFutID::ChkPrice_Rule;
    using COptFutID::ChkReversals_Conversion;
    using COptFutID::ChkSpread;
    using COptFutID::ChkStraddle_Strangle;
    using COptFutID::ChkTheSameCP;
    using COptFutID::ChkTheSameMonth;
    using COptFutID::ChkTwoCommID;
    using COptFutID::GetCallPut;
    using COptFutID::GetShortID;
  };

  // One contract of the small market with extended attributes.
  static void List(const char* code, std::vector<standin::ExtendedText> extended) {
    standin::Market market = standin::CurrentMarket();
    standin::Instrument contract;
    contract.exchId = 3;
    contract.code = code;
    contract.nameTw = contract.nameCn = code;
    contract.kind = "option";
    contract.extended = std::move(extended);
    std::erase_if(market.instruments,
                  [code](const standin::Instrument& other) { return other.code == code; });
    market.instruments.push_back(contract);
    standin::SetMarket(market);
  }

private:
  static int FirstDay() { return year_ * 10000 + 101; }
  static inline int year_ = 0;
  const tq::ClockSource previous_;
};
