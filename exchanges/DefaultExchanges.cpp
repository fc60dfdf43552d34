#include "exchanges/DefaultExchanges.h"

#include <algorithm>
#include <span>
#include <utility>

#include "platform/ServiceArray.h"
#include "symboltable/ExchangeService.h"

namespace tq {
namespace {

bool ContainsId(const CUIntArray& ids, unsigned id) {
  return std::find(ids.begin(), ids.end(), id) != ids.end();
}

} // namespace

bool ReadDefaultExchangeIds(CUIntArray& ids) {
  CUIntArray read;
  if (!ReadLoginNumbers(LoginInfoDefaultExchanges, [&read](int id) {
        if (id > 0)
          read.Add(static_cast<unsigned>(id));
      }))
    return false;
  ids.Copy(read);
  return true;
}

void MoveDefaultsForward(CUIntArray& ids, const CUIntArray& defaults) {
  for (int i = 0; i < ids.GetSize(); ++i) {
    const unsigned id = ids[i];
    if (ContainsId(defaults, id))
      continue;
    ids.Add(id);
    ids.RemoveAt(i);
  }
}

void DefaultExchanges::Read(CUIntArray& ids, bool useUsers) const {
  if (useUsers || !ReadDefaultExchangeIds(ids))
    ids.Copy(users_);
}

void DefaultExchanges::Clear() {
  ids_.RemoveAll();
  recordsOfIds_.clear();
  const auto released = std::move(records_); // given back last: the service may call the terminal
}

int DefaultExchanges::Init() {
  Clear();
  // While the services are asked the terminal may call this again: what they say is kept apart
  // until then.
  CUIntArray ids;
  Read(ids, useUsers_ != 0);
  ServiceArray<ExchInfo> list("VLGetExch");
  const int result = VLGetExch(list.List(), list.Count(), 1);
  const std::span<const ExchInfo> records =
      result == 0 ? std::span<const ExchInfo>() : list.Records();
  ids_.Copy(ids);
  recordsOfIds_.clear();
  for (const unsigned id : ids_) {
    const auto found = std::find_if(records.begin(), records.end(), [id](const ExchInfo& record) {
      return record.id == static_cast<int>(id);
    });
    recordsOfIds_.push_back(found == records.end() ? nullptr : &*found);
  }
  const auto released = std::exchange(records_, Records(list.Release()));
  return result != 0;
}

bool DefaultExchanges::HaveChanged() const {
  CUIntArray now;
  return ReadDefaultExchangeIds(now) &&
         !std::equal(now.begin(), now.end(), ids_.begin(), ids_.end());
}

bool DefaultExchanges::Contains(int exchId) const {
  return ContainsId(ids_, static_cast<unsigned>(exchId));
}

const ExchInfo* DefaultExchanges::RecordAt(int index) const {
  const auto at = static_cast<size_t>(index);
  return at < recordsOfIds_.size() ? recordsOfIds_[at] : nullptr;
}

} // namespace tq
