// What differs between two files of lists.
#include "tools/tqlists/verbs/Verbs.h"

#include <nlohmann/json.hpp>

#include "tools/tqlists/files/Outcome.h"
#include "tools/tqlists/lists/Comparison.h"

namespace tqlists {
namespace {

using Document = nlohmann::ordered_json;

Lists ReadLists(Session& session, const std::string& path) {
  const std::unique_ptr<Opened> opened = session.Open(path, Format::Lists);
  Lists lists;
  session.Read(*opened, [&](List&& list) { lists.lists.push_back(std::move(list)); });
  lists.defaultList = opened->reader->DefaultList();
  return lists;
}

std::string Titled(const std::string& name, const std::string& id) {
  return "\"" + name + "\" " + id;
}

void AppendChange(const Change& change, std::string& text) {
  if (change.name != change.oldName)
    text += "renamed: " + Titled(change.oldName, change.id) + " -> \"" + change.name + "\"\n";
  if (change.added.empty() && change.removed.empty() && change.moved.empty())
    return;
  text += "changed: " + Titled(change.name, change.id) + "\n";
  for (const std::string& entry : change.removed)
    text += "  - " + entry + "\n";
  for (const std::string& entry : change.added)
    text += "  + " + entry + "\n";
  for (const Move& move : change.moved)
    text += "  moved " + move.entry + " from " + std::to_string(move.from) + " to " +
            std::to_string(move.to) + "\n";
}

std::string TextOf(const Comparison& comparison) {
  std::string text;
  for (const List& list : comparison.removed)
    text += "removed: " + Titled(list.name, list.id) + "\n";
  for (const List& list : comparison.added)
    text += "added: " + Titled(list.name, list.id) + "\n";
  for (const Change& change : comparison.changed)
    AppendChange(change, text);
  if (comparison.otherOrder)
    text += "the lists are in another order\n";
  if (comparison.oldDefault != comparison.newDefault)
    text += "shown first: " + comparison.oldDefault + " -> " + comparison.newDefault + "\n";
  return text;
}

Document DocumentOf(const std::vector<List>& lists) {
  Document document = Document::array();
  for (const List& list : lists)
    document.push_back({{"id", list.id}, {"name", list.name}});
  return document;
}

Document DocumentOf(const Change& change) {
  Document moved = Document::array();
  for (const Move& move : change.moved)
    moved.push_back({{"entry", move.entry}, {"from", move.from}, {"to", move.to}});
  return {{"id", change.id},       {"name", change.name},       {"oldName", change.oldName},
          {"added", change.added}, {"removed", change.removed}, {"moved", std::move(moved)}};
}

Document DocumentOf(const Comparison& comparison) {
  Document changed = Document::array();
  for (const Change& change : comparison.changed)
    changed.push_back(DocumentOf(change));
  return {{"removed", DocumentOf(comparison.removed)},
          {"added", DocumentOf(comparison.added)},
          {"changed", std::move(changed)},
          {"otherOrder", comparison.otherOrder},
          {"oldDefault", comparison.oldDefault},
          {"newDefault", comparison.newDefault}};
}

} // namespace

int Diff(Session& session) {
  const Request& request = session.request;
  RefuseStandardInputTwice(request.files);
  const Lists before = ReadLists(session, request.files[0]);
  const Lists after = ReadLists(session, request.files[1]);
  const Comparison comparison = Compare(before, after);
  const std::unique_ptr<Output> output = session.OpenOutput(kStandardStream);
  output->Write(
      request.json
          ? DocumentOf(comparison).dump(1, ' ', false, Document::error_handler_t::replace) + "\n"
          : TextOf(comparison));
  output->Commit();
  return comparison.IsSame() ? session.Result() : kFindings;
}

} // namespace tqlists
