// Services that fail or answer what no service should: arrays of size zero or less, texts without a
// NUL, groups that contain themselves. In force until the services are reset.
#pragma once

#include <cstring>
#include <vector>

#include "fuzz/SequenceReader.h"
#include "terminal/ServiceNames.h"
#include "terminal/StandIn.h"

namespace fuzz {

// Records of arbitrary bytes, whose texts may lack a NUL.
template <typename Record> std::vector<Record> OddRecords(SequenceReader& input) {
  std::vector<Record> records(1 + input.Byte() % 3);
  for (Record& record : records) {
    std::memset(static_cast<void*>(&record), input.Byte() % 2 == 0 ? 'x' : 0, sizeof record);
    const std::string raw = input.Raw(input.Byte() % 32);
    std::memcpy(static_cast<void*>(&record), raw.data(), std::min(raw.size(), sizeof record));
  }
  return records;
}

// The claimed count for an answer of so many records; never more than there are.
inline int ClaimFor(SequenceReader& input, std::size_t size) {
  const int count = static_cast<int>(size);
  return input.One(std::array{count, count - 1, 0, -1, kLeast});
}

inline void AnswerOddGroups(SequenceReader& input) {
  std::vector<GroupInfo> records = OddRecords<GroupInfo>(input);
  for (GroupInfo& record : records) {
    record.nType = static_cast<short>(input.One(std::array{1, 2, 201, 0}));
    record.bHasSubGroup = 1;
    if (input.Byte() % 2 == 0)
      std::memcpy(record.szID, "TSE", sizeof "TSE");
  }
  const int count = ClaimFor(input, records.size());
  standin::AnswerGroups(input.One(std::array{1, 2, 201}), input.One(std::array{"", "TSE", "PICK"}),
                        std::move(records), count);
}

inline void AnswerOddSystems(SequenceReader& input) {
  standin::AnswerTradingSystems(OddRecords<TQS_TSINFO>(input),
                                input.One(std::array{1, 0, -1, 500}));
  standin::AnswerAccounts("T1", OddRecords<TQS_ACCOUNTINFO>(input),
                          input.One(std::array{1, 0, -1, 500}));
}

inline void AnswerOddSymbols(SequenceReader& input) {
  std::vector<SymbolInfo> symbols = OddRecords<SymbolInfo>(input);
  const int count = ClaimFor(input, symbols.size());
  standin::AnswerSymbols(1, symbols, count, static_cast<int>(input.Byte() % 2));
  standin::AnswerMembers(1, "CHIP", std::move(symbols), count);
}

// Withdraws all orders to fail.
inline void StopFailing() {
  for (const std::string_view service : standin::kServiceNames)
    standin::FailCall(service, 0);
}

// Makes one change for the worse or for the better, or none. Sets `refuse` if files can no longer
// be written.
inline void ChangeServices(SequenceReader& input, bool& refuse) {
  switch (input.Byte() % 16) {
  case 1:
    return standin::FailCall(input.One(standin::kServiceNames),
                             static_cast<int>(1 + input.Byte() % 8));
  case 2:
    return standin::FailAlways(input.One(standin::kServiceNames));
  case 3:
    return StopFailing();
  case 4:
    return AnswerOddGroups(input);
  case 5:
    return AnswerOddSymbols(input);
  case 6:
    return AnswerOddSystems(input);
  case 7:
    return standin::AnswerExtended("TXFL6.TF", 2, OddRecords<ExtAttr>(input));
  case 8:
    refuse = !refuse;
    return;
  default:
    return;
  }
}

} // namespace fuzz
