#include "symbollist/SymbolList.h"

#include <cstring>

#include "idlist/LifeWatch.h"
#include "idlist/StorableText.h"
#include "platform/CodePage.h"
#include "platform/xml/XmlDocument.h"
#include "symbollist/ListFollower.h"
#include "symbollist/ListIds.h"

CSymbolList::CSymbolList() noexcept : info_(), flag_(0) {}

CSymbolList::CSymbolList(const CSymbolList& other) noexcept
    : CIDList(other), info_(other.info_), flag_(0) {
  UpdateFlag();
}

CSymbolList::~CSymbolList() {
  if (follower_ != nullptr)
    follower_->Remove(*this);
}

void CSymbolList::SetID(const char* id) noexcept {
  const tq::LifeWatch watch(watch_);
  const CString kept = tq::StorableText(id); // which may log, and the terminal delete the list
  if (watch.IsGone())
    return;
  if (follower_ != nullptr)
    follower_->ForgetId(*this);
  tq::CopyCut(info_.ID, kept);
  if (follower_ != nullptr)
    follower_->EnterId(*this);
  UpdateFlag();
}

void CSymbolList::SetName(const char* name) noexcept {
  const tq::LifeWatch watch(watch_);
  const CString kept = tq::StorableText(name);
  if (watch.IsGone())
    return;
  if (follower_ != nullptr)
    follower_->ForgetName(*this);
  tq::CopyCut(info_.Name, kept);
  if (follower_ != nullptr)
    follower_->EnterName(*this);
}

void CSymbolList::ToXml(CString& out) noexcept {
  std::string element;
  element.reserve(XmlLength());
  AppendXml(element);
  out.SetString(element.data(), static_cast<int>(element.size()));
}

void CSymbolList::AppendXml(std::string& document) noexcept {
  tq::AppendListElement(info_, GetIDs(), document);
}

void tq::AppendListElement(const TQSymbolListInfo& list, const CString& ids,
                           std::string& document) {
  document += "<List ID='";
  document += list.ID;
  document += "' Name='";
  document += list.Name;
  document += "' Value='";
  document.append(ids.GetString(), static_cast<size_t>(ids.GetLength()));
  document += IsSystemListId(list.ID) ? "' Flag='1'/>\n" : "' Flag='0'/>\n";
}

size_t CSymbolList::XmlLength() noexcept {
  constexpr size_t kFixed = sizeof("<List ID='' Name='' Value='' Flag='0'/>\n");
  return kFixed + std::strlen(info_.ID) + std::strlen(info_.Name) +
         static_cast<size_t>(GetIDs().GetLength());
}

void CSymbolList::UpdateFlag() {
  flag_ = tq::IsSystemListIdNoCase(info_.ID) ? 1 : 0;
}

int CSymbolList::FillFromElement(const tq::XmlElement& element) noexcept {
  SetID("");
  SetName("");
  if (!element.HasAttributes())
    return 0;
  CString text;
  if (element.Attribute("ID", text))
    SetID(text);
  if (element.Attribute("Name", text))
    SetName(text);
  if (element.Attribute("Value", text))
    Update1(text);
  return 1;
}
