// The debug mode's look at what the terminal's services hand out, against the contracts of their
// headers (platform/services/).
#pragma once

#include "platform/diagnostics/DebugMode.h"
#include "platform/services/TQSProxy.h"
#include "platform/services/VLRecords.h"

namespace tq {

// What is wrong with a record, for a person; null for nothing.
const char* FaultOf(const SymbolInfo& record);
const char* FaultOf(const ExchInfo& record);
const char* FaultOf(const BaseAttr& record);
const char* FaultOf(const ExtAttr& record);
const char* FaultOf(const GroupInfo& record);
const char* FaultOf(const TQS_TSINFO& record);
const char* FaultOf(const TQS_ACCOUNTINFO& record);

void ReportBrokenArray(const char* operation, const char* fault);
void ReportBrokenRecord(const char* operation, int index, const char* fault);

// An array that the service handed out with a success: that it is there, and its records. The first
// bad one is reported, for the others are mostly of its kind.
template <typename Record> void CheckArray(const char* operation, const Record* list, int count) {
  if (count < 0)
    ReportBrokenArray(operation, "its count is negative");
  else if (list == nullptr && count > 0)
    ReportBrokenArray(operation, "it has a count and no array");
  for (int i = 0; list != nullptr && i < count; ++i) {
    if (const char* const fault = FaultOf(list[i])) {
      ReportBrokenRecord(operation, i, fault);
      return;
    }
  }
}

// A record that the service filled.
template <typename Record> void CheckRecord(const char* operation, const Record& record) {
  if (IsDebugging())
    CheckArray(operation, &record, 1);
}

} // namespace tq
