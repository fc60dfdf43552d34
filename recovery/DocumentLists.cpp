#include "recovery/DocumentLists.h"

namespace tq {

void ListPath::Enter(const DocumentWalk& walk) {
  const std::string_view name = walk.IsPlainElement() ? walk.LastTag().name : std::string_view();
  level_ = walk.Depth() + (walk.LastTag().isEmpty ? 1 : 0);
  if (level_ == 1)
    inResult_ = name == "Result";
  if (level_ <= 2)
    inLists_ = level_ == 2 && inResult_ && name == "SymbolList";
  isList_ = name == "List";
}

RawValue ValueOf(const Tag& tag, std::string_view name) {
  const TagAttribute* attribute = tag.Find(name);
  RawValue value;
  value.present = attribute != nullptr;
  if (value.present)
    value.bytes = attribute->value;
  return value;
}

DocumentLists::DocumentLists(std::string_view text, std::size_t at, Charset charset)
    : text_(text), faults_(1), walk_(text, at, charset, faults_) {}

bool DocumentLists::IsReadable(std::string_view text, std::size_t at, Charset charset,
                               FaultList& faults) {
  DocumentWalk walk(text, at, charset, faults);
  ListPath path;
  for (;;) {
    const DocumentPiece piece = walk.Next();
    const std::size_t begin = walk.Begin();
    if (piece == DocumentPiece::End)
      return faults.IsEmpty();
    if (piece == DocumentPiece::Start)
      path.Enter(walk);
    const bool between = piece == DocumentPiece::Text && path.IsInLists() && walk.Depth() == 2;
    if (between && text.substr(begin, walk.End() - begin).find_first_of("'\"") != text.npos) {
      faults.Note(Fault::OutsideOfLists, begin, walk.End() - begin);
      return false;
    }
  }
}

bool DocumentLists::Next(RawList& list) {
  for (;;) {
    const DocumentPiece piece = walk_.Next();
    if (piece == DocumentPiece::End)
      break;
    if (piece != DocumentPiece::Start)
      continue;
    path_.Enter(walk_);
    if (path_.IsLists())
      TakeLists();
    if (path_.IsList()) {
      TakeList(list);
      return true;
    }
  }
  if (!IsListFile())
    Note(Fault::Foreign, 0, 0);
  return false;
}

void DocumentLists::TakeLists() {
  const TagAttribute* index = walk_.LastTag().Find("DefaultIdx");
  if (index == nullptr)
    MissIndex(walk_.Begin(), walk_.End() - walk_.Begin());
  else
    TakeIndex(index->value, static_cast<std::size_t>(index->value.data() - text_.data()));
}

void DocumentLists::TakeList(RawList& list) const {
  list = {};
  list.begin = walk_.Begin();
  list.end = walk_.End();
  list.id = ValueOf(walk_.LastTag(), "ID");
  list.name = ValueOf(walk_.LastTag(), "Name");
  list.symbols = ValueOf(walk_.LastTag(), "Value");
}

} // namespace tq
