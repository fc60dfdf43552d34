#include "accounts/TradingRecords.h"

#include "accounts/Holdings.h"
#include "platform/Text.h"

namespace tq {

CString CAccount::Id() const {
  return ToCString(FieldText(info.id));
}

CString CAccount::DisplayId() const {
  return ToCString(FieldText(info.displayId));
}

CString CAccount::ListId() const {
  CString id;
  id.Format("%d%s", static_cast<int>(info.type), Id().GetString());
  return id;
}

bool CAccount::HasId(const CString& id) const {
  return FieldText(info.id) == ViewOf(id);
}

CString CTS::Id() const {
  return ToCString(FieldText(info.id));
}

CString CTS::Name() const {
  return ToCString(FieldText(info.name));
}

int CTS::IndexOf(const CString& id, TqsAccType type) const {
  for (size_t i = 0; i < accounts.size(); ++i) {
    if (accounts[i].Is(id, type))
      return static_cast<int>(i);
  }
  return -1;
}

const CAccount* CTS::FindAccount(const CString& id, TqsAccType type) const {
  const int index = IndexOf(id, type);
  return index < 0 ? nullptr : &accounts[static_cast<size_t>(index)];
}

CString CTS::MergedHoldings() const {
  tq::MergedHoldings merged;
  for (const CAccount& account : accounts)
    merged.Add(account.holdings);
  return merged.Text();
}

} // namespace tq
