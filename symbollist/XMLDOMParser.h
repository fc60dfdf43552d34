// Reads a list file into the manager.
#pragma once

#include "platform/XmlDocument.h"
#include "platform/framework/CString.h"

class CTQSymbolListMgr;

class CXMLDOMParser {
public:
  // The manager that LoadSymbolList fills; it must outlive the parser.
  explicit CXMLDOMParser(CTQSymbolListMgr& manager) : manager_(manager) {}

  // Reads the file through the platform's DOM. True only for a well-formed document; a missing file,
  // one over the size limit or one that cannot be read is none.
  bool Load(const CString& path);

  // The attribute DefaultIdx of the SymbolList element, a 16-bit signed decimal number. 0, with a line
  // in the log, when it is missing or no such number.
  static int GetDefaultIndex(const tq::XmlElement& symbolList);

  // Loads the file and appends its lists to the manager, in document order, its default index with
  // them; nothing happens when there is no document or it is no list file. A list file without any
  // list is written anew at once, to the working file whichever file it was.
  void LoadSymbolList(const CString& path);

  // Status answers in their two forms: <Result Status='%d'>%s</Result> and
  // <Result Status='%d' Reason='%s'>%s</Result>. Nothing is escaped.
  static CString FormatStatus(int status, const char* body);
  static CString FormatStatus(int status, const char* reason, const char* body);

private:
  CTQSymbolListMgr& manager_;
  tq::XmlDocument document_;
};
