// Shared by the tests of lists and their file: rows, tokens and files as text.
#pragma once

#include <string>
#include <vector>

#include "terminal/StandIn.h"
#include "tests/interface/EditTest.h"
#include "tests/support/ListRows.h"

namespace listtext {

inline std::string Declaration() {
  return IsTraditionChinese() ? "<?xml version='1.0' encoding='big5' ?>\n"
                              : "<?xml version='1.0' encoding='gb2312' ?>\n";
}

inline std::string File(const std::string& index, const std::vector<std::string>& elements) {
  std::string text = Declaration() + "<Result>\n<SymbolList DefaultIdx='" + index + "'>\n";
  for (const std::string& element : elements)
    text += "\t" + element + "\n";
  return text + "</SymbolList>\n</Result>";
}

inline std::string Element(const std::string& id, const std::string& name, const std::string& value,
                           const std::string& flag = "0") {
  return "<List ID='" + id + "' Name='" + name + "' Value='" + value + "' Flag='" + flag + "'/>";
}

inline std::string TokensOf(const CIDList& list) {
  std::string tokens;
  for (int i = 0; i < list.GetTokens().GetSize(); ++i)
    tokens += (i > 0 ? "|" : "") + std::string(list.GetTokens().GetAt(i));
  return tokens;
}

inline std::string Asked() {
  std::string asked;
  for (const standin::Call& call : standin::Calls())
    if (call.operation == "VLGetSymbolInfos")
      asked += "[" + call.arguments + "]";
  return asked;
}

} // namespace listtext
