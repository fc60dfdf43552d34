// Arrays that VLProxy hands out, and what holds for each of them.
#pragma once

#include <cstring>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "Report.h"
#include "VLProxy.h"

namespace conformance {

// Of records only what VLProxy.h names is compared; the rest is the service's own.
inline bool IsSame(const ExchInfo& left, const ExchInfo& right) {
  return left.id == right.id && std::strncmp(left.name, right.name, sizeof left.name) == 0;
}
inline bool IsSame(const SymbolInfo& left, const SymbolInfo& right) {
  return left.exchId == right.exchId && std::strncmp(left.id, right.id, sizeof left.id) == 0 &&
         std::strncmp(left.code, right.code, sizeof left.code) == 0 &&
         std::strncmp(left.name, right.name, sizeof left.name) == 0;
}
inline bool IsSame(const BaseAttr& left, const BaseAttr& right) {
  return left.usable == right.usable && std::strncmp(left.code, right.code, sizeof left.code) == 0;
}
inline bool IsSame(const ExtAttr& left, const ExtAttr& right) {
  return left.kind == right.kind && std::strncmp(left.text, right.text, sizeof left.text) == 0;
}
inline bool IsSame(const GroupInfo& left, const GroupInfo& right) {
  return left.nType == right.nType && left.bHasSubGroup == right.bHasSubGroup &&
         std::strncmp(left.szID, right.szID, sizeof left.szID) == 0 &&
         std::strncmp(left.szName, right.szName, sizeof left.szName) == 0;
}

// One array, released at the end. The call must have been noted in the report.
template <class Record> class Received {
public:
  // ask(list, count) makes the call and returns its result.
  template <class Ask> Received(Report& report, Ask ask) {
    static char poison[2 * sizeof(Record)];
    constexpr int poisonCount = 0x5a5a;
    Record* const before = reinterpret_cast<Record*>(poison);
    list_ = before;
    count_ = poisonCount;
    succeeded_ = ask(&list_, &count_) != 0;
    if (list_ == before || (list_ == nullptr && count_ == poisonCount)) {
      report.Found(Rule::ArrayCleared, "*list or *count is as it was before the call");
      list_ = list_ == before ? nullptr : list_;
      count_ = 0;
    }
    CheckShape(report);
  }
  Received(Received&& other) noexcept
      : list_(std::exchange(other.list_, nullptr)), count_(std::exchange(other.count_, 0)),
        succeeded_(other.succeeded_) {}
  Received& operator=(Received&&) = delete;
  ~Received() {
    if (list_ != nullptr)
      VLFree(list_);
  }

  bool Succeeded() const { return succeeded_; }
  // Empty after a failure.
  std::span<const Record> Records() const {
    if (!succeeded_ || list_ == nullptr || count_ <= 0)
      return {};
    return {list_, static_cast<std::size_t>(count_)};
  }

private:
  void CheckShape(Report& report) {
    const std::string seen = "count " + std::to_string(count_);
    if (count_ < 0)
      report.Found(Rule::ArrayCount, seen);
    else if (count_ > 0 && list_ == nullptr)
      report.Found(Rule::ArrayMissing, seen + " and no array");
    else if (succeeded_ && count_ == 0 && list_ != nullptr)
      report.Found(Rule::ArrayEmpty, "count 0 and an array");
  }

  Record* list_ = nullptr;
  int count_ = 0;
  bool succeeded_ = false;
};

template <class Record> bool Overlap(std::span<const Record> left, std::span<const Record> right) {
  const auto begins = [](std::span<const Record> of) {
    return reinterpret_cast<std::size_t>(of.data());
  };
  return !left.empty() && !right.empty() && begins(left) < begins(right) + right.size_bytes() &&
         begins(right) < begins(left) + left.size_bytes();
}

// Asks twice and returns the first answer: the second is memory of its own with the same records,
// and the first stays as it is until it is released.
template <class Record, class Ask> Received<Record> AskTwice(Report& report, Ask ask) {
  Received<Record> first(report, ask);
  const std::span<const Record> records = first.Records();
  const std::vector<Record> copy(records.begin(), records.end());
  {
    const Received<Record> second(report, ask);
    const std::span<const Record> again = second.Records();
    report.Hold(!Overlap(records, again), Rule::ArrayShared, "two answers share memory");
    bool same = first.Succeeded() == second.Succeeded() && again.size() == copy.size();
    for (std::size_t i = 0; same && i < copy.size(); ++i)
      same = IsSame(copy[i], again[i]);
    report.Hold(same, Rule::SameAnswer, "two calls in succession answer differently");
  }
  const bool changed =
      !copy.empty() && std::memcmp(copy.data(), records.data(), records.size_bytes()) != 0;
  report.Hold(!changed, Rule::ArrayChanged, "an array changed before it was released");
  return first;
}

// One call that has to fail, because of a null argument or of something unknown.
template <class Record, class Ask> void MustFail(Report& report, Rule rule, Ask ask) {
  const Received<Record> answer(report, ask);
  report.Hold(!answer.Succeeded(), rule, "the call succeeds");
}

} // namespace conformance
