// VLProxy: searches for what a user types.
#include <vector>

#include "platform/services/VLProxy.h"
#include "terminal/VLProxy/Answer.h"
#include "terminal/control/Listings.h"
#include "terminal/control/Reports.h"
#include "terminal/control/Script.h"

using namespace standin;

namespace {

constexpr int kEveryExchange = -1;

char Fold(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

// Codes are ASCII, so comparing bytes is right even when `start` is not.
bool BeginsWith(std::string_view code, std::string_view start) {
  if (start.size() > code.size())
    return false;
  for (std::size_t i = 0; i < start.size(); ++i)
    if (Fold(code[i]) != Fold(start[i]))
      return false;
  return true;
}

struct Wanted {
  std::string_view text; // as the service got it
  std::string name;      // the same in UTF-8, where no character contains part of another
  bool simplifiedToo;
};

bool NameContains(const Instrument& instrument, const Wanted& wanted) {
  const bool traditional = InterfaceLanguage() == Language::Traditional;
  const std::string& name = traditional ? instrument.nameTw : instrument.nameCn;
  return name.find(wanted.name) != std::string::npos ||
         (wanted.simplifiedToo && instrument.nameCn.find(wanted.name) != std::string::npos);
}

bool Matches(const SymbolInfo& info, const Instrument& instrument, const Wanted& wanted) {
  // The id begins with the bare code.
  return BeginsWith(info.id, wanted.text) || BeginsWith(info.code, wanted.text) ||
         NameContains(instrument, wanted);
}

std::vector<std::size_t> Search(const Wanted& wanted, const ListingRange& range) {
  const Listings& listings = CurrentListings();
  const std::vector<Instrument>& instruments = CurrentMarket().instruments;
  std::vector<std::size_t> found;
  for (std::size_t i = range.first; i < range.first + range.count; ++i)
    if (Matches(listings.Infos()[i], instruments[listings.Source(i)], wanted))
      found.push_back(i);
  return found;
}

} // namespace

int VLFindSymbol(const char* text, SymbolInfo** list, int* count, int reserved, int mode,
                 int exchId) {
  const bool proceed = Begin("VLFindSymbol", text, reserved, mode, exchId);
  if (!ClearOutputs(list, count) || !proceed || !text)
    return 0;
  if (*text == '\0')
    return 1;
  const Listings& listings = CurrentListings();
  const ListingRange everything{0, listings.Count()};
  const ListingRange* range = exchId == kEveryExchange ? &everything : listings.OfExchange(exchId);
  if (!range)
    return 0;
  const std::vector<std::size_t> found = Search({text, FromAnsi(text), mode != 0}, *range);
  if (!HandOut(found.size(), list, count))
    return 0;
  for (std::size_t i = 0; i < found.size(); ++i)
    (*list)[i] = listings.Infos()[found[i]];
  return 1;
}
