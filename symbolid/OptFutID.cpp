// Checks of single parts (a code, two sides, two months, two strikes), and what the service tells.
#include "symbolid/OptFutID.h"

#include "platform/Text.h"
#include "symbolid/CombinationRules.h"
#include "symbolid/ContractCode.h"
#include "symbolid/ContractService.h"

namespace {

bool IsSide(char side) {
  return side == 'B' || side == 'S';
}

} // namespace

COptFutID::COptFutID() noexcept : errorCode_(OptFutNoError) {}

int COptFutID::GetErrorCode() const noexcept {
  return errorCode_;
}

int COptFutID::Report(OptFutError error) {
  if (error == OptFutNoError)
    return 1;
  errorCode_ = error;
  return 0;
}

int COptFutID::ChkBS(char side1, char side2) noexcept {
  return Report(IsSide(side1) && IsSide(side2) ? OptFutNoError : OptFutBadSide);
}

int COptFutID::ChkCommIDFormat(const CString& code) noexcept {
  const std::string_view text = tq::ViewOf(code);
  // A code of another length has no error of its own: the number that terminals would show for it
  // does not exist, so none is to be stored here.
  return text.size() == tq::kOptionCodeLength && Report(tq::CheckOptionCode(text));
}

int COptFutID::ChkTheSameCP(char month1, char month2) noexcept {
  return GetCallPut(month1) == GetCallPut(month2);
}

int COptFutID::ChkTheSameMonth(const CString& month1, const CString& month2) noexcept {
  const bool same = tq::IsSameMonth(tq::ViewOf(month1), tq::ViewOf(month2));
  return Report(same ? OptFutNoError : OptFutMonthsDiffer);
}

int COptFutID::ChkMonth_Rule(const CString& month1, const CString& month2) noexcept {
  return static_cast<int>(tq::CompareMonths(tq::ViewOf(month1), tq::ViewOf(month2)));
}

int COptFutID::ChkPrice_Rule(const CString& price1, const CString& price2) noexcept {
  return static_cast<int>(tq::ComparePrices(tq::ViewOf(price1), tq::ViewOf(price2)));
}

char COptFutID::GetCallPut(char month) noexcept {
  return tq::CallPutOf(month);
}

int COptFutID::GetShortID(CString& out, const CString& id) noexcept {
  CString name;
  const int found = tq::ReadShortName(id, name);
  out = name;
  return found;
}

int COptFutID::GetFutureWeek(const CString& id, int& week, CString& weekText,
                             CString& extra) noexcept {
  tq::ContractWeek read;
  const int found = tq::ReadWeek(id, read);
  week = read.number;
  weekText = read.text;
  extra = read.strike;
  return found;
}
