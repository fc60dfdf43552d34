#include "terminal/control/MarketText.h"

#include "platform/services/VLRecords.h"

namespace standin {

bool SplitIds(std::string_view text, std::vector<std::string>& ids) {
  while (!text.empty()) {
    const std::size_t comma = text.find(',');
    const std::string_view id = text.substr(0, comma);
    if (!IsPlainId(id, sizeof(SymbolInfo::id) - 1))
      return false;
    ids.emplace_back(id);
    if (comma == std::string_view::npos)
      return true;
    text.remove_prefix(comma + 1);
  }
  return ids.empty(); // otherwise the text ends in a comma
}

std::string FoldedId(std::string_view id) {
  std::string folded(id);
  for (char& c : folded)
    c = c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
  return folded;
}

} // namespace standin
