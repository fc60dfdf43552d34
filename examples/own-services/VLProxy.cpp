// The symbol-data service. VLProxy.h says what each operation owes; a service that has nothing of a
// kind answers with success and no records, or fails where the header says so.
#include <VLProxy.h>

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <sstream>
#include <string>
#include <vector>

#include "Market.h"

namespace {

// What is handed out comes from this service's heap and comes back through VLFree.
template <typename Record>
int HandOut(const std::vector<Record>& records, Record** list, int* count) {
  if (list == nullptr || count == nullptr)
    return 0;
  *list = nullptr;
  *count = 0;
  if (records.empty())
    return 1;
  *list = static_cast<Record*>(std::malloc(records.size() * sizeof(Record)));
  if (*list == nullptr)
    return 0;
  std::copy(records.begin(), records.end(), *list);
  *count = static_cast<int>(records.size());
  return 1;
}

template <typename Record> int HandOutNone(Record** list, int* count) {
  return HandOut(std::vector<Record>(), list, count);
}

// Whether `text` begins with `start`; letter case of ASCII is ignored.
bool BeginsWith(const std::string& text, const std::string& start) {
  return text.size() >= start.size() &&
         std::equal(start.begin(), start.end(), text.begin(), [](unsigned char a, unsigned char b) {
           return std::toupper(a) == std::toupper(b);
         });
}

bool IsSame(const std::string& left, const std::string& right) {
  return left.size() == right.size() && BeginsWith(left, right);
}

enum class By { Id, IdOrCode };

// The symbols that a text of ids joined by "," names, by their numbers in the market.
std::vector<int> Named(const char* ids, By by) {
  std::vector<int> numbers;
  std::istringstream rest(ids);
  for (std::string id; std::getline(rest, id, ',');)
    for (int i = 0; i < kMarketSize; ++i)
      if (IsSame(id, kMarket[i].id) || (by == By::IdOrCode && IsSame(id, kMarket[i].code)))
        numbers.push_back(i);
  return numbers;
}

// Those that a typed text may mean.
std::vector<int> Found(const std::string& text) {
  std::vector<int> numbers;
  for (int i = 0; i < kMarketSize; ++i)
    if (!text.empty() && (BeginsWith(kMarket[i].id, text) ||
                          std::string(kMarket[i].name).find(text) != std::string::npos))
      numbers.push_back(i);
  return numbers;
}

std::vector<int> All() {
  std::vector<int> numbers(kMarketSize);
  std::iota(numbers.begin(), numbers.end(), 0);
  return numbers;
}

template <std::size_t size> void Copy(char (&field)[size], const char* text) {
  std::snprintf(field, size, "%s", text);
}

std::vector<SymbolInfo> InfosOf(const std::vector<int>& numbers) {
  std::vector<SymbolInfo> infos;
  for (const int number : numbers) {
    SymbolInfo& info = infos.emplace_back(SymbolInfo());
    info.exchId = kExchange;
    Copy(info.id, kMarket[number].id);
    Copy(info.code, kMarket[number].code);
    Copy(info.name, kMarket[number].name);
  }
  return infos;
}

std::vector<BaseAttr> AttributesOf(const std::vector<int>& numbers) {
  std::vector<BaseAttr> records;
  for (const int number : numbers) {
    BaseAttr& record = records.emplace_back(BaseAttr());
    record.usable = 1;
    Copy(record.code, kMarket[number].code);
    SetNumber(record, number);
  }
  return records;
}

} // namespace

void VLFree(void* array) {
  std::free(array);
}

int VLGetExch(ExchInfo** list, int* count, int) {
  ExchInfo exchange = {};
  exchange.id = kExchange;
  Copy(exchange.name, kExchangeName);
  return HandOut(std::vector<ExchInfo>{exchange}, list, count);
}

int VLGetBaseAttrs2(int exchId, int, BaseAttr** list, int* count, int, int) {
  HandOutNone(list, count);
  return exchId == kExchange && HandOut(AttributesOf(All()), list, count);
}

int VLGetBaseAttrs(const char* symbols, BaseAttr** list, int* count, int) {
  HandOutNone(list, count);
  return symbols != nullptr && HandOut(AttributesOf(Named(symbols, By::IdOrCode)), list, count);
}

int VLGetSymbolInfos(const char* ids, SymbolInfo** list, int* count) {
  HandOutNone(list, count);
  return ids != nullptr && HandOut(InfosOf(Named(ids, By::Id)), list, count);
}

int VLGetSymbolInfos2(int exchId, int, SymbolInfo** list, int* count, int) {
  HandOutNone(list, count);
  return exchId == kExchange && HandOut(InfosOf(All()), list, count);
}

int VLGetSymbolInfo(const char* id, SymbolInfo* info) {
  if (id == nullptr || info == nullptr)
    return 0;
  const std::vector<SymbolInfo> found = InfosOf(Named(id, By::Id));
  if (found.empty())
    return 0;
  *info = found.front();
  return 1;
}

int VLFindSymbol(const char* text, SymbolInfo** list, int* count, int, int, int exchId) {
  HandOutNone(list, count);
  if (text == nullptr || (exchId != -1 && exchId != kExchange))
    return text != nullptr;
  return HandOut(InfosOf(Found(text)), list, count);
}

// With one exchange it matters only whether that is among those asked for.
int VLFindSymbol2(const char* text, const char* exchIds, SymbolInfo** list, int* count, int, int) {
  HandOutNone(list, count);
  if (text == nullptr || exchIds == nullptr)
    return 0;
  const std::string asked = "," + std::string(exchIds) + ",";
  const std::string ours = "," + std::to_string(kExchange) + ",";
  return asked.find(ours) == std::string::npos || HandOut(InfosOf(Found(text)), list, count);
}

// Our exchange has no codes of its own: they are the symbols' codes.
int VLEX2ZUID2(const char* exchangeCode, SymbolInfo** list, int* count) {
  HandOutNone(list, count);
  if (exchangeCode == nullptr)
    return 0;
  std::vector<int> numbers = All();
  std::erase_if(numbers, [&](int i) { return !IsSame(kMarket[i].code, exchangeCode); });
  return HandOut(InfosOf(numbers), list, count);
}

// No contracts and no groups.

int VLGetZUID(int, const char*, char*) {
  return 0;
}

int VLGetExtendAttr(const char*, int, ExtAttr** list, int* count) {
  return HandOutNone(list, count) && false;
}

int VLGetSubGroup(int, const char* parentId, GroupInfo** list, int* count) {
  return HandOutNone(list, count) && parentId != nullptr;
}

int VLGetGroupSymbol(int, const char*, SymbolInfo** list, int* count, int) {
  return HandOutNone(list, count) && false;
}
