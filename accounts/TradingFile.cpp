#include "accounts/TradingFile.h"

#include "idlist/StorableText.h"
#include "platform/Text.h"
#include "symbollist/ListFile.h"

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

} // namespace

std::string TradingFileText(const std::vector<CTS>& systems) {
  std::string text = FileDeclaration();
  text += "<TSList>\n";
  for (const CTS& system : systems)
    AppendSystem(text, system);
  text += "</TSList>";
  return text;
}

} // namespace tq
