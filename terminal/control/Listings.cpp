#include "terminal/control/Listings.h"

#include <cstring>

#include "platform/CodePage.h"
#include "terminal/control/RecordBuilder.h"
#include "terminal/control/Reports.h"

namespace standin {

void Listings::Build(const Market& market) {
  BuildExchanges(market);
  OrderByExchange(market);
  BuildRecords(market);
}

void Listings::BuildExchanges(const Market& market) {
  exchanges_.clear();
  exchangeOfId_.clear();
  for (const Exchange& exchange : market.exchanges) {
    exchangeOfId_.emplace(exchange.id, exchanges_.size());
    ExchInfo info{};
    info.id = static_cast<short>(exchange.id);
    tq::CopyCut(info.name, exchange.name.c_str());
    exchanges_.push_back(info);
  }
}

// A stable counting sort: the market may list instruments in any order of exchanges.
void Listings::OrderByExchange(const Market& market) {
  ranges_.clear();
  for (const Exchange& exchange : market.exchanges)
    ranges_.try_emplace(exchange.id);
  for (const Instrument& instrument : market.instruments)
    if (const auto range = ranges_.find(instrument.exchId); range != ranges_.end())
      ++range->second.count;
  std::unordered_map<int, std::size_t> next;
  std::size_t total = 0;
  for (const Exchange& exchange : market.exchanges) {
    if (!next.try_emplace(exchange.id, total).second)
      continue;
    ListingRange& range = ranges_[exchange.id];
    range.first = total;
    total += range.count;
  }
  sources_.assign(total, 0);
  for (std::size_t i = 0; i < market.instruments.size(); ++i)
    if (const auto place = next.find(market.instruments[i].exchId); place != next.end())
      sources_[place->second++] = i;
}

void Listings::BuildRecords(const Market& market) {
  traditional_.assign(sources_.size(), SymbolInfo{});
  simplified_.assign(sources_.size(), SymbolInfo{});
  heads_.assign(sources_.size(), BaseAttrHead{});
  index_.Reset(sources_.size());
  for (std::size_t i = 0; i < sources_.size(); ++i) {
    const Instrument& instrument = market.instruments[sources_[i]];
    const ExchInfo& exchange = exchanges_[exchangeOfId_.at(instrument.exchId)];
    BuildInfo(instrument, exchange, traditional_[i]);
    simplified_[i] = traditional_[i];
    tq::CopyCut(traditional_[i].name, Encode(instrument.nameTw, Language::Traditional).c_str());
    tq::CopyCut(simplified_[i].name, Encode(instrument.nameCn, Language::Simplified).c_str());
    BuildHead(instrument, exchange, heads_[i]);
    if (!instrument.code.empty())
      index_.Add(traditional_[i].id, i);
  }
}

const ListingRange* Listings::OfExchange(int exchId) const {
  const auto found = ranges_.find(exchId);
  return found == ranges_.end() ? nullptr : &found->second;
}

std::size_t Listings::FindId(std::string_view id) const {
  return index_.Find(id);
}

std::size_t Listings::FindCodeIn(const ExchInfo& exchange, std::string_view code) const {
  char id[sizeof(SymbolInfo::id) + sizeof(ExchInfo::name)];
  if (code.empty() || code.size() >= sizeof(SymbolInfo::id))
    return kNotFound;
  std::memcpy(id, code.data(), code.size());
  id[code.size()] = '.';
  std::strcpy(id + code.size() + 1, exchange.name);
  return FindId(id);
}

std::size_t Listings::FindCode(int exchId, std::string_view code) const {
  const auto exchange = exchangeOfId_.find(exchId);
  return exchange == exchangeOfId_.end() ? kNotFound
                                         : FindCodeIn(exchanges_[exchange->second], code);
}

std::size_t Listings::FindIdOrCode(std::string_view text) const {
  std::size_t found = FindId(text);
  for (const ExchInfo& exchange : exchanges_) {
    if (found != kNotFound)
      break;
    found = FindCodeIn(exchange, text);
  }
  return found;
}

const SymbolInfo* Listings::Infos() const {
  return InterfaceLanguage() == Language::Traditional ? traditional_.data() : simplified_.data();
}

void Listings::Write(std::size_t position, BaseAttr& record) const {
  static_assert(sizeof(BaseAttrHead::name) == sizeof(SymbolInfo::name));
  std::memcpy(&record, &heads_[position], sizeof(BaseAttrHead));
  std::memcpy(reinterpret_cast<char*>(&record) + offsetof(BaseAttrHead, name),
              Infos()[position].name, sizeof(SymbolInfo::name));
}

} // namespace standin
