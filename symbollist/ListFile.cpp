#include "symbollist/ListFile.h"

#include <new>

#include "platform/xml/XmlText.h"
#include "symbollist/FileDeclaration.h"
#include "symbollist/SymbolList.h"

namespace tq {
namespace {

constexpr char kTail[] = "</SymbolList>\n</Result>";

CSymbolList& ListAt(const CPtrArray& lists, int index) {
  return *static_cast<CSymbolList*>(lists.GetAt(index));
}

} // namespace

size_t ListFileLength(const CPtrArray& lists) {
  constexpr size_t kFrame = 160; // declaration, root, default index and tail
  size_t length = kFrame;
  for (int i = 0; i < lists.GetSize(); ++i)
    length += 1 + ListAt(lists, i).XmlLength();
  return length;
}

std::string ListFileText(const CPtrArray& lists, int defaultIndex) {
  std::string text;
  text.reserve(ListFileLength(lists));
  text += FileDeclaration();
  text += "<Result>\n<SymbolList DefaultIdx='";
  text += std::to_string(defaultIndex);
  text += "'>\n";
  for (int i = 0; defaultIndex >= 0 && i < lists.GetSize(); ++i) {
    text += '\t';
    ListAt(lists, i).AppendXml(text);
  }
  text += kTail;
  return text;
}

bool MakeListFileText(const CPtrArray& lists, int defaultIndex, std::string& text) {
  constexpr int kFrameElements = 2;
  if (lists.GetSize() > kXmlPieceLimit - kFrameElements)
    return false;
  try {
    text = ListFileText(lists, defaultIndex);
  } catch (const std::bad_alloc&) {
    return false;
  }
  return text.size() <= kXmlSizeLimit;
}

} // namespace tq
