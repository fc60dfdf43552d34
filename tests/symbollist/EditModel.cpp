#include "tests/symbollist/EditModel.h"

#include <algorithm>
#include <utility>

namespace {

bool IsHeading(const std::string& token) {
  return token.find(':', 1) != std::string::npos;
}

std::string Upper(std::string text) {
  for (char& c : text)
    c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c;
  return text;
}

std::vector<std::string> Split(const std::string& ids) {
  std::vector<std::string> tokens;
  std::string token;
  for (char c : ids + ",") {
    if (c != ',')
      token += c;
    else if (!token.empty())
      tokens.push_back(std::exchange(token, ""));
  }
  return tokens;
}

std::string Join(const std::vector<std::string>& tokens) {
  std::string ids;
  for (const std::string& token : tokens)
    ids += (ids.empty() ? "" : ",") + token;
  return ids;
}

std::string Replaced(std::string text, const std::string& what, const std::string& with) {
  for (size_t at = 0; !what.empty() && (at = text.find(what, at)) != std::string::npos;
       at += with.size())
    text.replace(at, what.size(), with);
  return text;
}

std::string Number(int n) {
  return "(" + std::to_string(n) + ")";
}

} // namespace

ModelList* EditModel::Find(const std::string& id) {
  for (ModelList& list : lists) {
    if (Upper(list.id) == Upper(id))
      return &list;
  }
  return nullptr;
}

bool EditModel::Taken(const std::string& name) const {
  return std::any_of(lists.begin(), lists.end(),
                     [&](const ModelList& list) { return Upper(list.name) == Upper(name); });
}

std::string EditModel::Adjusted(std::string name) const {
  int n = 1;
  while (Taken(name)) {
    if (name.find(Number(n)) == std::string::npos)
      name += Number(n);
    else if (++n > 100)
      return name;
    else
      name = Replaced(name, Number(n - 1), Number(n));
  }
  return name;
}

std::string EditModel::Moved(const std::string& ids) const {
  std::string result;
  std::string token;
  for (char c : ids + ",") {
    if (c != ',') {
      token += c;
      continue;
    }
    const std::string id = Upper(token);
    if (id.ends_with(".TW") && known.count(id) == 0 &&
        known.count(id.substr(0, id.size() - 2) + "TE") != 0)
      token = token.substr(0, token.size() - 2) + "TE";
    result += std::exchange(token, "") + ",";
  }
  result.pop_back();
  return result;
}

int EditModel::Add(const std::string& id, const std::string& newId, const std::string& name,
                   const std::string& ids, bool append, bool overwrite) {
  if (name.empty() || ids.empty())
    return 0;
  if (ModelList* list = id.empty() ? nullptr : Find(id)) {
    if (Upper(list->name) != Upper(name) && !overwrite)
      return 0;
    list->ids = ids;
  } else {
    const std::string free = Adjusted(name);
    if (Taken(free))
      return 0;
    lists.insert(append ? lists.end() : lists.begin(), {id.empty() ? newId : id, free, Moved(ids)});
  }
  if (index == -1)
    index = 0;
  Save();
  ++notified;
  return 1;
}

int EditModel::Delete(const std::string& id) {
  ModelList* list = Find(id);
  if (list == nullptr)
    return 0;
  const int at = static_cast<int>(list - lists.data());
  const int count = static_cast<int>(lists.size());
  if (at == index && count == 1)
    index = -1;
  else if (at == index && at == count - 1)
    --index;
  lists.erase(lists.begin() + at);
  Save();
  return 1;
}

int EditModel::ReplaceIds(const TextPairs& pairs) {
  bool changed = false;
  for (ModelList& list : lists) {
    std::string ids = list.ids;
    for (const auto& [what, with] : pairs)
      ids = Replaced(ids, what, with);
    changed = changed || ids != list.ids;
    list.ids = ids;
  }
  if (!changed)
    return 0;
  Save();
  ++notified;
  return 1;
}

void EditModel::Set(std::vector<ModelList> copies) {
  lists = std::move(copies);
  for (ModelList& list : lists)
    list.ids = Moved(list.ids);
  const int count = static_cast<int>(lists.size());
  if (index < 0 && count > 0)
    index = 0;
  else if (index >= count)
    index = count - 1;
}

void EditModel::Save() {
  if (index < 0 && !lists.empty())
    index = 0;
  file = "<?xml version='1.0' encoding='" + encoding + "' ?>\n<Result>\n<SymbolList DefaultIdx='" +
         std::to_string(index) + "'>\n";
  for (const ModelList& list : lists)
    file += "\t<List ID='" + list.id + "' Name='" + list.name + "' Value='" + list.ids +
            "' Flag='" + (list.id.starts_with("ZUSYSLIST") ? "1" : "0") + "'/>\n";
  file += "</SymbolList>\n</Result>";
}

void EditModel::Load() {
  for (ModelList& list : lists)
    list.ids = Moved(list.ids);
  if (lists.empty())
    Save();
}

void EditModel::UpdateSystem(const TextPairs& symbols, const TextPairs& names) {
  for (const auto& [id, ids] : symbols) {
    ModelList* list = Find(id);
    if (list == nullptr)
      continue;
    list->ids = ids;
    for (const auto& [named, name] : names) {
      if (named == id && !name.empty())
        list->name = name;
    }
  }
  Save();
  ++updated;
}

std::vector<std::string> EditModel::Tokens(const ModelList& list) const {
  std::vector<std::string> tokens = Split(list.ids);
  for (std::string& token : tokens)
    token = IsHeading(token) || known.count(Upper(token)) == 0 ? token : Upper(token);
  return tokens;
}

std::vector<int> EditModel::Rows(const std::vector<std::string>& tokens) const {
  std::vector<int> rows;
  for (size_t i = 0; i < tokens.size(); ++i) {
    if (IsHeading(tokens[i]) || known.count(tokens[i]) != 0)
      rows.push_back(static_cast<int>(i));
  }
  return rows;
}

int EditModel::Remove(const std::string& id, int row) {
  ModelList* list = Find(id);
  if (list == nullptr)
    return 0;
  std::vector<std::string> tokens = Tokens(*list);
  const std::vector<int> rows = Rows(tokens);
  if (row < 0 || row >= static_cast<int>(rows.size()))
    return 0;
  tokens.erase(tokens.begin() + rows[static_cast<size_t>(row)]);
  list->ids = Join(tokens);
  return 1;
}

int EditModel::Swap(const std::string& id, int first, int second) {
  ModelList* list = Find(id);
  if (list == nullptr)
    return 0;
  std::vector<std::string> tokens = Tokens(*list);
  const std::vector<int> rows = Rows(tokens);
  const int count = static_cast<int>(rows.size());
  if (first == second || first < 0 || second < 0 || first >= count || second >= count)
    return 0;
  std::swap(tokens[static_cast<size_t>(rows[static_cast<size_t>(first)])],
            tokens[static_cast<size_t>(rows[static_cast<size_t>(second)])]);
  list->ids = Join(tokens);
  return 1;
}

int EditModel::Insert(const std::string& id, int row, std::string text, bool before, bool heading) {
  ModelList* list = Find(id);
  if (list == nullptr || text.empty() || text.find(',') != std::string::npos)
    return 0;
  std::vector<std::string> tokens = Tokens(*list);
  text += heading ? ":" : "";
  const auto held = [&](const std::string& token) { return Upper(token) == Upper(text); };
  if (!IsHeading(text) && std::any_of(tokens.begin(), tokens.end(), held))
    return 0;
  const std::vector<int> rows = Rows(tokens);
  int at = 0;
  if (row >= static_cast<int>(rows.size()))
    at = static_cast<int>(tokens.size());
  else if (row >= 0)
    at = rows[static_cast<size_t>(row)] + (before ? 0 : 1);
  tokens.insert(tokens.begin() + at, text);
  list->ids = Join(tokens);
  return 1;
}

int EditModel::Replace(const std::string& id, int row, const std::string& text) {
  ModelList* list = Find(id);
  if (list == nullptr)
    return 0;
  std::vector<std::string> tokens = Tokens(*list);
  const std::vector<int> rows = Rows(tokens);
  if (row < 0 || row >= static_cast<int>(rows.size()) || text.empty() ||
      text.find(',') != std::string::npos)
    return 0;
  tokens[static_cast<size_t>(rows[static_cast<size_t>(row)])] = text;
  list->ids = Join(tokens);
  return 1;
}
