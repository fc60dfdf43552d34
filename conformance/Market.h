// What the services said of the market so far: the later checks ask for what the earlier ones saw.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "Texts.h"
#include "VLRecords.h"

namespace conformance {

// No service knows it.
inline constexpr char kUnknownId[] = "?NONE?.?X";
inline constexpr char kUnknownCode[] = "?NONE?";

// Every section of an exchange.
inline constexpr int kWholeExchange = -1;

struct ListedExchange {
  ExchInfo info;
  std::size_t first = 0; // its symbols in Market::symbols
  std::size_t count = 0;

  std::string Name() const { return std::string(FieldText(info.name)); }
};

struct Market {
  std::vector<ListedExchange> exchanges;
  std::vector<SymbolInfo> symbols;                   // exchange by exchange, in the service's order
  std::unordered_map<std::string, std::size_t> byId; // from upper-cased full ids
  std::vector<std::size_t> contracts;                // the futures and options among the symbols

  // The symbol with that id; null for one that is not listed.
  const SymbolInfo* Find(std::string_view id) const {
    const auto found = byId.find(Upper(id));
    return found == byId.end() ? nullptr : &symbols[found->second];
  }
  std::size_t PositionOf(const SymbolInfo& symbol) const {
    return static_cast<std::size_t>(&symbol - symbols.data());
  }
  const ListedExchange* FindExchange(int exchId) const {
    for (const ListedExchange& exchange : exchanges)
      if (exchange.info.id == exchId)
        return &exchange;
    return nullptr;
  }
  int UnusedExchange() const {
    int exchId = 32000;
    while (FindExchange(exchId) != nullptr)
      --exchId;
    return exchId;
  }
};

inline std::string IdOf(const SymbolInfo& symbol) {
  return std::string(FieldText(symbol.id));
}
// Without the exchange's suffix; the code may have dots of its own.
inline std::string CodeOf(const SymbolInfo& symbol) {
  const std::string id = IdOf(symbol);
  return id.substr(0, id.rfind('.'));
}

// The positions first, first + step ... of a sample with at most `most` of `count` things.
template <class Visit> void ForSample(std::size_t count, std::size_t most, Visit visit) {
  const std::size_t step = count <= most ? 1 : (count + most - 1) / most;
  for (std::size_t i = 0; i < count; i += step)
    visit(i);
}

} // namespace conformance
