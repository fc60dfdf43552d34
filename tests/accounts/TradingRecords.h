// Records of the trading-system proxy, filled by hand.
#pragma once

#include <cstring>
#include <string>

#include "accounts/TradingTable.h"

namespace tqtest {

// Copies as many bytes as fit, without a NUL when the text fills the field.
template <size_t SIZE> void Fill(char (&field)[SIZE], const std::string& text) {
  std::memset(field, 0, SIZE);
  std::memcpy(field, text.data(), std::min(SIZE, text.size()));
}

inline TQS_TSINFO SystemInfo(const std::string& id, const std::string& name) {
  TQS_TSINFO info = {};
  Fill(info.id, id);
  Fill(info.name, name);
  return info;
}

inline TQS_ACCOUNTINFO AccountInfo(int type, const std::string& id, const std::string& displayId) {
  TQS_ACCOUNTINFO info = {};
  info.type = static_cast<TqsAccType>(type);
  Fill(info.id, id);
  Fill(info.displayId, displayId);
  return info;
}

inline tq::CAccount Account(int type, const std::string& id, const std::string& displayId,
                            const char* holdings) {
  tq::CAccount account;
  account.info = AccountInfo(type, id, displayId);
  account.holdings = holdings;
  return account;
}

} // namespace tqtest
