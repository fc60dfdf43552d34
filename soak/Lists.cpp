#include "soak/Lists.h"

#include <algorithm>
#include <string_view>

#include "platform/services/tqCommon.h"

namespace soak {
namespace {

constexpr int kUserLists = 1;
constexpr char kTail[] = "</SymbolList>\n</Result>";

bool IsSystemId(const std::string& id) {
  constexpr std::string_view kStart = "ZUSYSLIST";
  return id.size() == kStart.size() + 1 && id.starts_with(kStart) && id.back() >= '1' &&
         id.back() <= '6';
}

std::string Head(int index) {
  return std::string("<?xml version='1.0' encoding='") +
         (IsTraditionChinese() != 0 ? "big5" : "gb2312") +
         "' ?>\n<Result>\n<SymbolList DefaultIdx='" + std::to_string(index) + "'>\n";
}

// Takes what stands between `before` and `after` off the front of `text`.
bool Take(std::string_view& text, std::string_view before, std::string_view after,
          std::string& value) {
  if (!text.starts_with(before))
    return false;
  text.remove_prefix(before.size());
  const std::size_t end = text.find(after);
  if (end == std::string_view::npos)
    return false;
  value = text.substr(0, end);
  text.remove_prefix(end);
  return value.find_first_of("'&<") == std::string::npos;
}

bool TakeList(std::string_view& text, List& list) {
  std::string flag;
  if (!Take(text, "\t<List ID='", "' Name='", list.id) ||
      !Take(text, "' Name='", "' Value='", list.name) ||
      !Take(text, "' Value='", "' Flag='", list.symbols) || !Take(text, "' Flag='", "'/>\n", flag))
    return false;
  text.remove_prefix(std::string_view("'/>\n").size());
  return true;
}

} // namespace

Lists ListsOf(CTQSymbolListMgr& manager) {
  Lists all;
  CString id, name, symbols;
  for (int i = 0; manager.GetSymbolListInfo(i, id, name, symbols, kUserLists) != 0; ++i)
    all.lists.push_back({id.GetString(), name.GetString(), symbols.GetString()});
  manager.GetDefaultListIdx(all.index);
  return all;
}

std::string FileOf(const Lists& lists) {
  const int index = lists.lists.empty() ? lists.index : std::max(lists.index, 0);
  std::string text = Head(index);
  for (const List& list : lists.lists)
    text += "\t<List ID='" + list.id + "' Name='" + list.name + "' Value='" + list.symbols +
            "' Flag='" + (IsSystemId(list.id) ? "1" : "0") + "'/>\n";
  return text + kTail;
}

bool IsEmptyFile(const std::string& file) {
  return file.ends_with(std::string("'>\n") + kTail) && !HoldsList(file);
}

std::optional<std::vector<List>> ListsIn(const std::string& file) {
  const std::size_t head = file.find("'>\n");
  std::string_view text(file);
  if (head == std::string::npos || file.find("<SymbolList DefaultIdx='") > head)
    return std::nullopt;
  text.remove_prefix(head + std::string_view("'>\n").size());
  std::vector<List> lists;
  while (text != kTail) {
    if (!TakeList(text, lists.emplace_back()))
      return std::nullopt;
  }
  return lists;
}

bool HoldsList(const std::string& file) {
  return file.find("<List ") != std::string::npos;
}

std::string Lower(std::string id) {
  for (char& letter : id)
    if (letter >= 'A' && letter <= 'Z')
      letter = static_cast<char>(letter - 'A' + 'a');
  return id;
}

const List* Find(const std::vector<List>& lists, const std::string& id) {
  const std::string wanted = Lower(id);
  const auto found = std::find_if(lists.begin(), lists.end(),
                                  [&](const List& list) { return Lower(list.id) == wanted; });
  return found == lists.end() ? nullptr : &*found;
}

} // namespace soak
