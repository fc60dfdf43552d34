// The user's default exchanges: the ids, in order of preference, on which bare codes are looked
// for, with the exchange records that go with them; and the order in which dialogs show exchanges.
//
// Operations are those of CTQSymbolListMgr; manager/TQSymbolListMgr.h says for each what it takes
// and returns. The services may let the terminal call any of them from within another one.
#pragma once

#include <memory>
#include <vector>

#include "platform/framework/CUIntArray.h"
#include "platform/services/VLProxy.h"

namespace tq {

// Asks for the logged-in user's default exchanges and replaces `ids` by them, best first. Pieces
// that are no positive number are passed over. False, and `ids` as it was, when the login
// information cannot be read.
bool ReadDefaultExchangeIds(CUIntArray& ids);

// Moves what is not a default exchange towards the end: the walk goes over the positions in order,
// puts a non-default id behind the last one, and goes on with the next position. So the id that
// slides into the freed place is passed over and stays in front. Terminals show exchanges in this
// very order: do not mend the skip.
void MoveDefaultsForward(CUIntArray& ids, const CUIntArray& defaults);

class DefaultExchanges {
public:
  // Whether the user's own are used. Takes effect with the next reading.
  void UseUsers(int use) { useUsers_ = use; }
  int UsesUsers() const { return useUsers_; }
  // The user's own.
  const CUIntArray& Users() const { return users_; }
  void SetUsers(const CUIntArray& ids) { users_.Copy(ids); }

  // What Init would read: the login information's, or the user's own.
  void Read(CUIntArray& ids, bool useUsers) const;
  int Init();
  void Clear();
  // Whether the login information has others now, or another order.
  bool HaveChanged() const;

  const CUIntArray& Ids() const { return ids_; }
  bool Contains(int exchId) const;
  // The service's record of the i-th of them, good until the next Init or Clear; null when the
  // service did not list that exchange.
  const ExchInfo* RecordAt(int index) const;

  // The order in which dialogs show exchanges.
  const CUIntArray& Order() const { return order_; }
  void SetOrder(const CUIntArray& order) { order_.Copy(order); }

private:
  struct Release {
    void operator()(ExchInfo* records) const { VLFree(records); }
  };

  using Records = std::unique_ptr<ExchInfo, Release>;

  Records records_; // the service's array
  CUIntArray ids_;
  std::vector<const ExchInfo*> recordsOfIds_; // for each of ids_ its record in records_, or null
  CUIntArray users_;
  CUIntArray order_;
  int useUsers_ = 0;
};

} // namespace tq
