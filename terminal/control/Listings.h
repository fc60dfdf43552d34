// The market as the services hand it out. The records are built once, when the market is set, so
// that a call is a look-up and a copy.
#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "terminal/BaseAttrLayout.h"
#include "terminal/StandIn.h"
#include "terminal/control/Encoding.h"
#include "terminal/control/IdIndex.h"

namespace standin {

// A listing is identified by its position: exchanges in the service's order, and the listings of an
// exchange in the market's order.
struct ListingRange {
  std::size_t first = 0;
  std::size_t count = 0;
};

class TQSTANDIN_API Listings {
public:
  static constexpr std::size_t kNotFound = IdIndex::kNotFound;

  void Build(const Market& market);

  const std::vector<ExchInfo>& Exchanges() const { return exchanges_; }
  // The listings of an exchange; null for an exchange that the market does not list.
  const ListingRange* OfExchange(int exchId) const;
  std::size_t Count() const { return heads_.size(); }

  // By full id, or by exchange number and bare code, ignoring ASCII letter case.
  std::size_t FindId(std::string_view id) const;
  std::size_t FindCode(int exchId, std::string_view code) const;
  // By full id or else by bare code on the first exchange that lists it.
  std::size_t FindIdOrCode(std::string_view text) const;

  // The records by position, in sequence and in the interface language.
  const SymbolInfo* Infos() const;
  // Writes the record of a listing over the beginning of a zero-filled one.
  void Write(std::size_t position, BaseAttr& record) const;
  // The position of the listing among the market's instruments.
  std::size_t Source(std::size_t position) const { return sources_[position]; }

private:
  void BuildExchanges(const Market& market);
  void OrderByExchange(const Market& market);
  void BuildRecords(const Market& market);
  std::size_t FindCodeIn(const ExchInfo& exchange, std::string_view code) const;

  std::vector<ExchInfo> exchanges_;
  std::unordered_map<int, ListingRange> ranges_;
  std::unordered_map<int, std::size_t>
      exchangeOfId_; // position in exchanges_ of the first with the id
  std::vector<std::size_t> sources_;
  std::vector<SymbolInfo> traditional_;
  std::vector<SymbolInfo> simplified_;
  std::vector<BaseAttrHead> heads_; // without the name
  IdIndex index_;
};

// The current market's.
TQSTANDIN_API const Listings& CurrentListings();

} // namespace standin
