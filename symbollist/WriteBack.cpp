#include "symbollist/WriteBack.h"

#include <vector>

#include "platform/framework/CString.h"
#include "platform/xml/XmlDocument.h"

namespace tq {
namespace {

constexpr const char* kStored[] = {"ID", "Name", "Value"};
constexpr char kLost = '?'; // what a character comes out as that the code page lacks

// An attribute that is absent is written empty.
bool SameList(const XmlElement& one, const XmlElement& other, bool mayLose) {
  for (const char* name : kStored) {
    CString value;
    CString again;
    one.Attribute(name, value);
    other.Attribute(name, again);
    if (value != again || (mayLose && value.Find(kLost) >= 0))
      return false;
  }
  return true;
}

} // namespace

bool ComesBack(const std::string& bytes, const XmlDocument& document, const std::string& text) {
  // The usual case: the file is one of ours.
  if (bytes == text)
    return true;
  XmlDocument again;
  if (!again.Load(text.data(), text.size()))
    return false;
  const std::vector<XmlElement> lists = document.Select("/Result/SymbolList/List");
  const std::vector<XmlElement> listsAgain = again.Select("/Result/SymbolList/List");
  if (lists.size() != listsAgain.size())
    return false;
  const bool mayLose = !document.KeepsBytes() || bytes.find("&#") != std::string::npos;
  for (std::size_t i = 0; i < lists.size(); ++i) {
    if (!SameList(lists[i], listsAgain[i], mayLose))
      return false;
  }
  return true;
}

} // namespace tq
