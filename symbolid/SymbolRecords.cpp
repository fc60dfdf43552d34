#include "symbolid/SymbolRecords.h"

#include <cstring>

#include "platform/CodePage.h"
#include "platform/Text.h"

namespace tq {
namespace {

bool EndsInHalf(const char* text, std::size_t length) {
  const char* const last = text + length - 1;
  return IsLeadByte(*last) && IsCharStart(text, last);
}

} // namespace

SymbolRecords::SymbolRecords(const char* records, int count)
    : records_(records), count_(records == nullptr || count < 0 ? 0 : count) {}

std::string_view SymbolRecords::At(int index) const {
  const char* const record = records_ + static_cast<std::ptrdiff_t>(index) * kSymbolRecordSize;
  std::size_t length = strnlen(record, kSymbolRecordSize);
  if (length == kSymbolRecordSize && EndsInHalf(record, length))
    --length;
  return Trimmed({record, length});
}

CString SymbolRecords::Joined() const {
  CString joined;
  for (int i = 0; i < count_; ++i) {
    const std::string_view symbol = At(i);
    joined.Append(symbol.data(), static_cast<int>(symbol.size()));
    joined += ',';
  }
  if (!joined.IsEmpty())
    joined.Truncate(joined.GetLength() - 1);
  return joined;
}

} // namespace tq
