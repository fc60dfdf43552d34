// The contents of a key object's state bytes.
#pragma once

#include <new>

#include "platform/services/VLProxy.h"
#include "terminal/BaseAttrLayout.h"

namespace standin {

struct KeyState {
  const BaseAttr* record = nullptr; // the caller's, set by Setup
  int tradeExchId = 0;              // set by SetUpTrade together with
  char tradeCode[20] = {};          // the bare code; empty: not set up
};

// The service's layout of the record. All members are packed, so any address is aligned.
inline const BaseAttrHead& Head(const BaseAttr& record) {
  return *reinterpret_cast<const BaseAttrHead*>(&record);
}

} // namespace standin
