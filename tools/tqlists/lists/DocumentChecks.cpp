#include "tools/tqlists/lists/DocumentChecks.h"

#include "tools/tqlists/formats/Entries.h"
#include "tools/tqlists/formats/Place.h"
#include "tools/tqlists/lists/XmlTags.h"

namespace tqlists {
namespace {

constexpr std::size_t kTradingIdLimit = 32; // bytes

// Notes at the places of tags.
class TagNotes {
public:
  TagNotes(std::string_view document, Notes& notes) : places_(document), notes_(notes) {}

  void Add(const Tag& tag, const std::string& reason) {
    const Place place = places_.Find(tag.offset);
    notes_.Add(place.line, place.column, reason);
  }

private:
  PlaceFinder places_;
  Notes& notes_;
};

bool IsNumber(std::string_view text) {
  if (text.starts_with('-'))
    text.remove_prefix(1);
  return !text.empty() && text.find_first_not_of("0123456789") == std::string_view::npos;
}

void CheckId(const Tag& tag, TagNotes& notes) {
  const std::string_view id = tag.Attribute("ID").value_or("");
  if (id.empty())
    notes.Add(tag, "no ID");
  else if (id.size() > kTradingIdLimit)
    notes.Add(tag, "the ID is longer than 32 bytes");
}

void CheckAccount(const Tag& tag, TagNotes& notes) {
  CheckId(tag, notes);
  for (const char* name : {"DispID", "SymbolList"}) {
    if (!tag.Attribute(name))
      notes.Add(tag, std::string("no ") + name);
  }
  if (!IsNumber(tag.Attribute("TqsAccType").value_or("")))
    notes.Add(tag, "TqsAccType is no number");
}

void CheckTradingTag(const Tag& tag, std::size_t depth, std::size_t& systems, TagNotes& notes) {
  const bool root = depth == 0 && tag.name == "TSList";
  const bool system = depth == 1 && tag.name == "TS";
  if (system) {
    ++systems;
    CheckId(tag, notes);
    if (!tag.Attribute("Name"))
      notes.Add(tag, "no Name");
  } else if (depth == 2 && tag.name == "Account") {
    CheckAccount(tag, notes);
  } else if (!root) {
    notes.Add(tag, "an element that the library does not write here: " + Shown(tag.name));
  }
}

} // namespace

std::size_t CheckTrading(std::string_view document, Notes& notes) {
  XmlTags tags(document);
  TagNotes places(document, notes);
  std::size_t systems = 0;
  std::size_t depth = 0;
  for (Tag tag; tags.Next(tag);) {
    if (tag.opens)
      CheckTradingTag(tag, depth, systems, places);
    depth += tag.opens ? 1 : 0;
    depth -= tag.closes && depth > 0 ? 1 : 0;
  }
  return systems;
}

std::size_t CheckImport(std::string_view document, Notes& notes) {
  XmlTags tags(document);
  TagNotes places(document, notes);
  std::size_t lists = 0;
  std::size_t depth = 0;
  bool hasIds = false; // the node that is open, and its first IDs
  bool isList = false;
  Tag node;
  for (Tag tag; tags.Next(tag);) {
    if (tag.opens && depth == 0 && tag.name != "HaldeUserList")
      places.Add(tag, "another root than HaldeUserList: the file has no lists");
    if (tag.opens && depth == 1) {
      node = tag;
      hasIds = isList = false;
    }
    if (tag.opens && depth == 2 && tag.name == "IDs" && !hasIds) {
      hasIds = true;
      isList = !tag.closes && !Trimmed(tags.TextBehind()).empty();
    }
    depth += tag.opens ? 1 : 0;
    depth -= tag.closes && depth > 0 ? 1 : 0;
    if (!tag.closes || depth != 1)
      continue;
    lists += isList ? 1 : 0;
    if (!isList)
      places.Add(node, "a node without IDs: it gives no list");
  }
  return lists;
}

} // namespace tqlists
