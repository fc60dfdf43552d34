#include "groups/TradingFile.h"

#include "symbollist/FileDeclaration.h"

namespace tq {
namespace {

void AppendAccount(std::string& text, const CAccount& account) {
  text += "\t\t<Account ID = '";
  text += FieldText(account.info.id);
  text += "' DispID = '";
  text += FieldText(account.info.displayId);
  text += "' TqsAccType = '";
  text += std::to_string(static_cast<int>(account.info.type));
  text += "' SymbolList = '";
  text.append(account.holdings.GetString(), static_cast<size_t>(account.holdings.GetLength()));
  text += "' />\n";
}

void AppendSystem(std::string& text, const CTS& system) {
  text += "\t<TS ID = '";
  text += FieldText(system.info.id);
  text += "' Name = '";
  text += FieldText(system.info.name);
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
