// Reads a list file into the manager.
#pragma once

#include "platform/XmlDocument.h"
#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "symbollist/KeptFiles.h"

class CTQSymbolListMgr;

class CXMLDOMParser {
public:
  // The manager that LoadSymbolList fills; it must outlive the parser.
  explicit CXMLDOMParser(CTQSymbolListMgr& manager) : manager_(manager) {}

  // Reads the file through the platform's DOM. True only for a well-formed document; a missing
  // file, one over the size limit or one that cannot be read is none. Outcome() tells which.
  bool Load(const CString& path);
  // How the latest load ended.
  tq::LoadOutcome Outcome() const { return outcome_; }

  // The attribute DefaultIdx of the SymbolList element, a 16-bit signed decimal number. 0, with a
  // line in the log, when it is missing or no such number.
  static int GetDefaultIndex(const tq::XmlElement& symbolList);

  // Puts the file's lists, in document order, and its default index in the place of the manager's,
  // all at once when they have been read. Without a document, or when it is no list file, the
  // manager has no lists and keeps its index. The manager's knowledge of its files is told how that
  // ended. A list file without any list is written anew at once, to the working file whichever file
  // it was.
  void LoadSymbolList(const CString& path);

  // Status answers in their two forms: <Result Status='%d'>%s</Result> and
  // <Result Status='%d' Reason='%s'>%s</Result>. Nothing is escaped.
  static CString FormatStatus(int status, const char* body);
  static CString FormatStatus(int status, const char* reason, const char* body);

private:
  tq::LoadOutcome ReadLists(CPtrArray& lists, int& defaultIndex);

  CTQSymbolListMgr& manager_;
  tq::XmlDocument document_;
  tq::FileContents contents_;
  tq::LoadOutcome outcome_ = tq::LoadOutcome::NotTried;
};
