#include "accounts/TradingFile.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "idlist/StorableText.h"
#include "platform/Text.h"
#include "symbollist/file/ListFile.h"

namespace tq {
namespace {

void AppendAccount(std::string& text, const CAccount& account) {
  text += "\t\t<Account ID = '";
  AppendStorable(FieldText(account.info.id), text);
  text += "' DispID = '";
  AppendStorable(FieldText(account.info.displayId), text);
  text += "' TqsAccType = '";
  text += std::to_string(static_cast<int>(account.info.type));
  text += "' SymbolList = '";
  AppendStorable(ViewOf(account.holdings), text);
  text += "' />\n";
}

void AppendSystem(std::string& text, const CTS& system) {
  text += "\t<TS ID = '";
  AppendStorable(FieldText(system.info.id), text);
  text += "' Name = '";
  AppendStorable(FieldText(system.info.name), text);
  text += "' >\n";
  for (const CAccount& account : system.accounts)
    AppendAccount(text, account);
  text += "\t</TS>\n";
}

// The file's frame, but for the declaration.
constexpr std::string_view kBegin = "<TSList>\n";
constexpr std::string_view kEnd = "</TSList>";
constexpr std::string_view kLineStarts[] = {"\t<TS ID = '", "\t\t<Account ID = '", "\t</TS>"};

bool IsOwnLine(std::string_view line) {
  return std::any_of(std::begin(kLineStarts), std::end(kLineStarts),
                     [line](std::string_view start) { return line.starts_with(start); });
}

// Moves over `wanted`; false when something else stands there.
bool Take(std::string_view& text, std::string_view wanted) {
  if (!text.starts_with(wanted))
    return false;
  text.remove_prefix(wanted.size());
  return true;
}

} // namespace

std::string TradingFileText(const std::vector<CTS>& systems) {
  std::string text = FileDeclaration();
  text += kBegin;
  for (const CTS& system : systems)
    AppendSystem(text, system);
  text += kEnd;
  return text;
}

bool IsOwnTradingFile(const std::string& bytes) {
  std::string_view text = bytes;
  if (text.empty())
    return true;
  if ((!Take(text, DeclarationOf(true)) && !Take(text, DeclarationOf(false))) ||
      !Take(text, kBegin))
    return false;
  while (IsOwnLine(text)) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos)
      return false;
    text.remove_prefix(end + 1);
  }
  return text == kEnd;
}

} // namespace tq
