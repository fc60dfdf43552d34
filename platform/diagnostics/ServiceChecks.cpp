#include "platform/diagnostics/ServiceChecks.h"

#include <cstring>

#include "platform/FieldText.h"

namespace tq {
namespace {

template <std::size_t SIZE> bool IsOpen(const char (&field)[SIZE]) {
  return std::memchr(field, '\0', SIZE) == nullptr;
}

// A code, ".", and an exchange.
bool IsFullId(std::string_view id) {
  const std::size_t dot = id.rfind('.');
  return dot != std::string_view::npos && dot > 0 && dot + 1 < id.size();
}

} // namespace

const char* FaultOf(const SymbolInfo& record) {
  if (IsOpen(record.id))
    return "its id has no NUL";
  if (IsOpen(record.code))
    return "its code has no NUL";
  if (IsOpen(record.name))
    return "its name has no NUL";
  return IsFullId(FieldText(record.id)) ? nullptr : "its id has no exchange behind a \".\"";
}

const char* FaultOf(const ExchInfo& record) {
  if (IsOpen(record.name))
    return "its name has no NUL";
  return record.name[0] == '\0' ? "its name is empty" : nullptr;
}

const char* FaultOf(const BaseAttr& record) {
  if (IsOpen(record.code))
    return "its code has no NUL";
  return record.code[0] == '\0' && record.usable != 0 ? "its code is empty" : nullptr;
}

const char* FaultOf(const ExtAttr& record) {
  return IsOpen(record.text) ? "its text has no NUL" : nullptr;
}

const char* FaultOf(const GroupInfo& record) {
  if (IsOpen(record.szID))
    return "its id has no NUL";
  if (IsOpen(record.szName))
    return "its name has no NUL";
  return record.szID[0] == '\0' ? "its id is empty" : nullptr;
}

const char* FaultOf(const TQS_TSINFO& record) {
  if (IsOpen(record.id))
    return "its id has no NUL";
  return IsOpen(record.name) ? "its name has no NUL" : nullptr;
}

const char* FaultOf(const TQS_ACCOUNTINFO& record) {
  if (IsOpen(record.id))
    return "its id has no NUL";
  return IsOpen(record.displayId) ? "its displayId has no NUL" : nullptr;
}

void ReportBrokenArray(const char* operation, const char* fault) {
  ReportMistake(TQProblemBroken, "%s: the array: %s", operation, fault);
}

void ReportBrokenRecord(const char* operation, int index, const char* fault) {
  ReportMistake(TQProblemBroken, "%s: record %d: %s", operation, index, fault);
}

} // namespace tq
