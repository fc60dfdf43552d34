#include "symbolid/ContractService.h"

#include "platform/FieldText.h"
#include "platform/ServiceArray.h"
#include "platform/Text.h"
#include "platform/services/VLProxy.h"
#include "platform/services/tqStock.h"

namespace tq {
namespace {

constexpr int kAnyExchange = -1;

constexpr char kStrikeKey[] = "V3";     // of ExtAttrWeekly
constexpr char kWeekPrefixKey[] = "V4"; // "W"
constexpr char kWeekNumberKey[] = "V5"; // "2"

constexpr char kNameFirstKey[] = "V5"; // of ExtAttrShortName
constexpr char kNameSecondKey[] = "V6";

// The text of a record. A text that fills its field has no NUL.
CString TextOf(const ExtAttr& record) {
  return ToCString(FieldText(record.text));
}

} // namespace

CString ServiceId(const CString& code) {
  char id[VLServiceIdSize + 1] = {}; // with a NUL behind whatever the service writes
  if (!VLGetZUID(kAnyExchange, code, id))
    return CString();
  return id;
}

int ReadWeek(const CString& serviceId, ContractWeek& week) {
  week = {};
  ServiceArray<ExtAttr> attributes("VLGetExtendAttr");
  if (!VLGetExtendAttr(serviceId, ExtAttrWeekly, attributes.List(), attributes.Count()) ||
      attributes.Records().empty())
    return 0;
  const CString text = TextOf(attributes.Records().front());
  CString number;
  CStockKey::ParseExtAttr(text, kStrikeKey, week.strike);
  CStockKey::ParseExtAttr(text, kWeekPrefixKey, week.text);
  CStockKey::ParseExtAttr(text, kWeekNumberKey, number);
  week.number = LeadingInt(ViewOf(number));
  week.text += number;
  return 1;
}

ContractWeek WeekOfCode(const CString& code) {
  ContractWeek week;
  const CString serviceId = ServiceId(code);
  if (!serviceId.IsEmpty())
    ReadWeek(serviceId, week);
  return week;
}

int ReadShortName(const CString& serviceId, CString& name) {
  name.Empty();
  ServiceArray<ExtAttr> attributes("VLGetExtendAttr");
  if (!VLGetExtendAttr(serviceId, ExtAttrShortName, attributes.List(), attributes.Count()) ||
      attributes.Records().size() != 1)
    return 0;
  const CString text = TextOf(attributes.Records().front());
  CString first;
  CString second;
  if (!CStockKey::ParseExtAttr(text, kNameFirstKey, first) ||
      !CStockKey::ParseExtAttr(text, kNameSecondKey, second))
    return 0;
  // The blank separates the name from what follows in a description.
  name.Format("%s%s ", first.GetString(), second.GetString());
  return 1;
}

} // namespace tq
