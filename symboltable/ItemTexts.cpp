#include "symboltable/ItemTexts.h"

#include <algorithm>

#include "platform/Text.h"
#include "platform/services/tqStock.h"
#include "symbolid/SymbolKey.h"

namespace tq {
namespace {

constexpr int kTextFields[kItemTextCount] = {FieldLegExchange,   FieldIndustry, FieldUnderlying,
                                             FieldContractMonth, FieldCurrency, FieldExchangeCode};
static_assert(kTextFields[kExchangeCodeText] == FieldExchangeCode);
constexpr std::size_t kRecentCount = 1024; // a power of two

} // namespace

int ItemTextIndex(int field) {
  const int* const end = kTextFields + kItemTextCount;
  const int* const at = std::find(kTextFields, end, field);
  return at == end ? -1 : static_cast<int>(at - kTextFields);
}

std::shared_ptr<const ItemTexts> ItemTextReader::Read(const CStaticKey& key,
                                                      std::string_view symbol, bool& codeIsSymbol) {
  std::uint32_t hash = 0;
  bool any = false;
  codeIsSymbol = false;
  for (int i = 0; i < kItemTextCount; ++i) {
    CString& text = read_.texts[i];
    if (!key.GetFieldString(kTextFields[i], text) || text.IsEmpty()) {
      text.Truncate(0);
      continue;
    }
    if (i == kExchangeCodeText && ViewOf(text) == symbol) {
      codeIsSymbol = true;
      text.Truncate(0);
      continue;
    }
    any = true;
    hash = hash * 31 + MakeKey(ViewOf(text)).hash + static_cast<std::uint32_t>(i);
  }
  return any ? Shared(hash) : nullptr;
}

char ItemTextReader::ReadLetter(const CStaticKey& key, int field) {
  return key.GetFieldString(field, letter_) && !letter_.IsEmpty() ? letter_.GetAt(0) : ' ';
}

bool ItemTextReader::Matches(const ItemTexts& known) const {
  return std::equal(read_.texts, read_.texts + kItemTextCount, known.texts);
}

std::shared_ptr<const ItemTexts> ItemTextReader::Shared(std::uint32_t hash) {
  if (recent_.empty())
    recent_.resize(kRecentCount);
  std::shared_ptr<const ItemTexts>& known = recent_[hash % kRecentCount];
  if (!known || !Matches(*known)) {
    // Deep copies: the memory of those just read is reused for the next symbol.
    auto texts = std::make_shared<ItemTexts>();
    for (int i = 0; i < kItemTextCount; ++i)
      texts->texts[i].SetString(read_.texts[i].GetString(), read_.texts[i].GetLength());
    known = std::move(texts);
  }
  return known;
}

} // namespace tq
