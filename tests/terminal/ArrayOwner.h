// Owns an array of VLProxy until the end of the block.
#pragma once

#include <string>

#include "platform/services/VLProxy.h"

template <class T> struct ArrayOwner {
  ArrayOwner() = default;
  ~ArrayOwner() { VLFree(list); }
  ArrayOwner(const ArrayOwner&) = delete;
  ArrayOwner& operator=(const ArrayOwner&) = delete;

  T* list = nullptr;
  int count = -1;
};

using Infos = ArrayOwner<SymbolInfo>;
using Attrs = ArrayOwner<BaseAttr>;
using Exchs = ArrayOwner<ExchInfo>;

// Asks for the exchanges, as the plainest call of the service.
inline int GetExch() {
  Exchs exchanges;
  return VLGetExch(&exchanges.list, &exchanges.count, 1);
}

// The ids of the records, separated by blanks.
inline std::string Ids(const Infos& infos) {
  std::string text;
  for (int i = 0; i < infos.count; ++i)
    text += (i > 0 ? " " : "") + std::string(infos.list[i].id);
  return text;
}
