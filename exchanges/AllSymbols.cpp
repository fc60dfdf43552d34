#include "exchanges/AllSymbols.h"

#include <cstring>
#include <new>
#include <set>
#include <span>
#include <utility>
#include <vector>

#include "exchanges/DefaultExchanges.h"
#include "platform/ServiceArray.h"
#include "platform/diagnostics/DebugMode.h"
#include "symboltable/ExchangeService.h"

namespace tq {
namespace {

// All symbols of the exchanges, in that order. `complete` is cleared when an exchange could not be
// read.
std::vector<ServiceArray<SymbolInfo>> ReadSymbols(const CUIntArray& exchanges, bool& complete) {
  constexpr int kAllSections = -1;
  std::vector<ServiceArray<SymbolInfo>> lists;
  lists.reserve(static_cast<size_t>(exchanges.GetSize()));
  for (const unsigned exchange : exchanges) {
    ServiceArray<SymbolInfo> list("VLGetSymbolInfos2");
    if (VLGetSymbolInfos2(static_cast<int>(exchange), kAllSections, list.List(), list.Count(), 0) ==
        0)
      complete = false;
    else if (!list.Records().empty())
      lists.push_back(std::move(list));
  }
  return lists;
}

// Null without memory: there are hundreds of bytes for each symbol of a market, in one piece.
std::unique_ptr<SymbolInfo[]> RoomFor(size_t count) {
  return std::unique_ptr<SymbolInfo[]>(new (std::nothrow) SymbolInfo[count]);
}

// Of the debug mode: the copies that are with the terminal, and those that it has released since.
// Others were handed out before, and some of those are released by delete[], so that nothing is
// known of them.
std::set<const SymbolInfo*> handedOut;
std::set<const SymbolInfo*> givenBack;
bool anyBefore = false;

void NoteHandedOut(const SymbolInfo* infos) {
  if (!IsDebugging()) {
    anyBefore = true;
    return;
  }
  handedOut.insert(infos);
  givenBack.erase(infos);
}

bool MayFree(const SymbolInfo* infos) {
  if (infos == nullptr || !IsDebugging())
    return true;
  if (handedOut.erase(infos) == 0 && (givenBack.contains(infos) || !anyBefore)) {
    ReportMistake(TQProblemMisuse,
                  "FreeSymbolInfos: infos was released before, or is of another operation");
    return false;
  }
  givenBack.insert(infos);
  return true;
}

} // namespace

void AllSymbols::Build(const CUIntArray& defaultExchanges) {
  CUIntArray exchanges;
  {
    const ExchangeList list;
    if (list.Result() == 0)
      return;
    for (const ExchInfo& record : list.Records())
      exchanges.Add(static_cast<unsigned>(record.id));
  }
  MoveDefaultsForward(exchanges, defaultExchanges);
  bool complete = true;
  const std::vector<ServiceArray<SymbolInfo>> lists = ReadSymbols(exchanges, complete);
  // A buffer that lacks an exchange is better than none, but not than the whole one of before.
  if (!complete && infos_ != nullptr)
    return;
  size_t total = 0;
  for (const auto& list : lists)
    total += list.Records().size();
  Clear();
  if (total == 0)
    return;
  infos_ = RoomFor(total);
  if (infos_ == nullptr)
    return;
  for (const auto& list : lists) {
    const std::span<const SymbolInfo> records = list.Records();
    std::memcpy(&infos_[count_], records.data(), records.size_bytes());
    count_ += static_cast<int>(records.size());
  }
}

void AllSymbols::Clear() {
  infos_.reset();
  count_ = 0;
}

std::shared_ptr<const SymbolInfo[]> AllSymbols::Share(int* count) const {
  *count = count_;
  return infos_;
}

int AllSymbols::Copy(SymbolInfo** out, int* count) const {
  if (out == nullptr || count == nullptr || IsEmpty())
    return 0;
  std::unique_ptr<SymbolInfo[]> copy = RoomFor(static_cast<size_t>(count_));
  if (copy == nullptr)
    return 0;
  std::memcpy(copy.get(), infos_.get(), static_cast<size_t>(count_) * sizeof(SymbolInfo));
  NoteHandedOut(copy.get());
  *out = copy.release();
  *count = count_;
  return 1;
}

void AllSymbols::Free(SymbolInfo* infos) {
  if (!MayFree(infos))
    return;
  const std::unique_ptr<SymbolInfo[]> released(infos);
}

} // namespace tq
