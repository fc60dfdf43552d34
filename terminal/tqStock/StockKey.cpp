// tqStock: the attributes that need no record.
#include <string_view>

#include "platform/services/tqStock.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

// The value of the first "key=value" with that key; empty when there is none. Neither ";" nor "="
// is ever the second byte of a character.
std::string_view FindValue(std::string_view text, std::string_view key) {
  while (!text.empty()) {
    const std::size_t end = text.find(';');
    const std::string_view pair = text.substr(0, end);
    const std::size_t mark = pair.find('=');
    if (mark != std::string_view::npos && pair.substr(0, mark) == key)
      return pair.substr(mark + 1);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return {};
}

} // namespace

int CStockKey::ParseExtAttr(const char* text, const char* key, CString& value) {
  value.Empty();
  const bool proceed = Begin("CStockKey::ParseExtAttr", text, key);
  if (!proceed || !text || !key)
    return 0;
  const std::string_view found = FindValue(text, key);
  value.SetString(found.data(), static_cast<int>(found.size()));
  return !found.empty();
}
