// What a key object keeps in its state bytes.
#pragma once

#include <new>

#include "platform/services/VLProxy.h"
#include "terminal/BaseAttrLayout.h"

namespace standin {

struct KeyState {
  const BaseAttr* record = nullptr; // the caller's, set by Setup
  int tradeExchId = 0;              // set by SetUpTrade, with
  char tradeCode[20] = {};          // a bare code; empty: not set up
};

// What the service wrote into the record. All of its members are packed, so any address is aligned.
inline const BaseAttrHead& Head(const BaseAttr& record) {
  return *reinterpret_cast<const BaseAttrHead*>(&record);
}

} // namespace standin
