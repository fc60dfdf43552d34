#include "soak/Expected.h"

#include <algorithm>
#include <iterator>

namespace soak {
namespace {

std::string Unless(bool holds, const char* what) {
  return holds ? "" : what;
}

// Without the first list of that id.
std::vector<List> Without(std::vector<List> lists, const std::string& id) {
  if (const List* const list = Find(lists, id))
    lists.erase(lists.begin() + (list - lists.data()));
  return lists;
}

// The lists of a file whose text comes back; the symbols of lists may have moved.
std::string UnexpectedLoad(const std::string& file, const Lists& after) {
  const auto held = ListsIn(file);
  const auto same = [](const List& one, const List& other) {
    return one.id == other.id && one.name == other.name;
  };
  return Unless(
      !held || std::equal(held->begin(), held->end(), after.lists.begin(), after.lists.end(), same),
      "the lists are not those of the file");
}

std::string UnexpectedDeletion(const Outcome& o) {
  if (o.after.lists != Without(o.before.lists, o.arguments.id.GetString()))
    return "not the list was deleted, or not it alone";
  return Unless(!o.hasDirectory || o.after.lists == o.before.lists || o.working == FileOf(o.after),
                "the deletion is not in the file");
}

std::string UnexpectedEdit(const Outcome& o) {
  return Unless(!o.hasDirectory || o.after.lists == o.before.lists || o.working == FileOf(o.after),
                "the change is not in the file");
}

std::string UnexpectedAddition(const Outcome& o) {
  const List* const was = Find(o.before.lists, o.arguments.id.GetString());
  const bool isNew = was == nullptr && o.after.lists.size() == o.before.lists.size() + 1;
  const bool atEnd = o.arguments.other != 0;
  std::vector<List> others = o.after.lists;
  if (isNew)
    others.erase(atEnd ? others.end() - 1 : others.begin());
  if (isNew && others != o.before.lists)
    return "a list was not added where it should be";
  return UnexpectedEdit(o);
}

struct ExactRule {
  std::string_view signature;
  std::string (*check)(const Outcome& outcome);
};

constexpr ExactRule kExactRules[] = {
    {"ClearSymbolList()",
     [](const Outcome& o) { return Unless(o.after.lists.empty(), "there are lists still"); }},
    {"SetDefaultIndex(int)",
     [](const Outcome& o) {
       return Unless(o.after.index == o.arguments.number, "another default index");
     }},
    {"SaveSymbolList()",
     [](const Outcome& o) {
       return Unless(!o.hasDirectory || o.working == FileOf(o.after), "not saved");
     }},
    {"BackupSymbolList()",
     [](const Outcome& o) {
       return Unless(!o.hasDirectory || o.backup == FileOf(o.after), "not backed up");
     }},
    {"CreateEmptySymbolListFile()",
     [](const Outcome& o) {
       return Unless(!o.hasDirectory || IsEmptyFile(o.working), "the file has lists");
     }},
    {"LoadSymbolList()",
     [](const Outcome& o) {
       return o.hasDirectory ? UnexpectedLoad(o.working, o.after) : std::string();
     }},
    {"RestorSymbolList()",
     [](const Outcome& o) {
       return o.hasDirectory ? UnexpectedLoad(o.backup, o.after) : std::string();
     }},
    {"DeleteSymbolList(CString)", UnexpectedDeletion},
    {"AddSymbolList(CString const&, int, CString const&, CString const&, int, int)",
     UnexpectedAddition},
    {"ReplaceID(CStringArray*, CStringArray*)", UnexpectedEdit},
    {"UpdateSystemList(CMapStringToString*, CMapStringToString*)", UnexpectedEdit},
};

} // namespace

bool IsExact(std::string_view signature) {
  return std::any_of(std::begin(kExactRules), std::end(kExactRules),
                     [&](const ExactRule& rule) { return rule.signature == signature; });
}

std::string Unexpected(const Outcome& outcome) {
  for (const ExactRule& rule : kExactRules)
    if (rule.signature == outcome.signature)
      return rule.check(outcome);
  return "";
}

} // namespace soak
