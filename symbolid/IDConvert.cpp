#include "symbolid/IDConvert.h"

#include "platform/Text.h"

CIDConvert::CIDConvert(int idType, const char* id) noexcept : idType_(idType), id_(id) {
  fullId_.Format("%d.%s", idType_, id_.GetString());
}

CIDConvert::CIDConvert(const char* fullId) noexcept : idType_(0), fullId_(fullId) {
  const int comma = fullId_.Find(',');
  if (comma < 0) {
    id_ = fullId_;
    return;
  }
  idType_ = tq::LeadingInt(tq::ViewOf(fullId_).substr(0, static_cast<std::size_t>(comma)));
  id_ = fullId_.Mid(comma + 1);
}

CString CIDConvert::GetFullID() const noexcept {
  return fullId_;
}

CString CIDConvert::GetID() const noexcept {
  return id_;
}

int CIDConvert::GetIDType() const noexcept {
  return idType_;
}
