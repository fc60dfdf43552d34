// Reads a list file.
#pragma once

#include <functional>
#include <utility>

#include "platform/framework/CPtrArray.h"
#include "platform/framework/CString.h"
#include "platform/xml/XmlDocument.h"
#include "symbollist/KeptFiles.h"

class CSymbolList;

class CXMLDOMParser {
public:
  // What is done with each list once its ids have been read, before the next one is.
  using Finish = std::function<void(CSymbolList&)>;

  // Reads the file through the platform's DOM. True only for a well-formed document; a missing
  // file, one over the size limit or one that cannot be read is none. Outcome() tells which.
  bool Load(const CString& path);
  // How the latest load, or reading of its lists, ended.
  tq::LoadOutcome Outcome() const { return outcome_; }
  // The file's bytes, which are the caller's from then on.
  tq::FileContents TakeContents() { return std::move(contents_); }

  // The attribute DefaultIdx of the SymbolList element, a 16-bit signed decimal number. 0, with a
  // line in the log, when it is missing or no such number.
  static int GetDefaultIndex(const tq::XmlElement& symbolList);

  // Loads the file and puts its lists, in document order, behind those of `lists`, which the caller
  // owns, and its default index into `defaultIndex`. Without a document, or when it is no list
  // file, both stay as they were; a bad list ends the reading, with the lists in front of it.
  // Outcome() tells which.
  void ReadLists(const CString& path, const Finish& finish, CPtrArray& lists, int& defaultIndex);

  // Status answers in their two forms: <Result Status='%d'>%s</Result> and
  // <Result Status='%d' Reason='%s'>%s</Result>. Nothing is escaped.
  static CString FormatStatus(int status, const char* body);
  static CString FormatStatus(int status, const char* reason, const char* body);

private:
  tq::LoadOutcome ReadDocument(const Finish& finish, CPtrArray& lists, int& defaultIndex);

  tq::XmlDocument document_;
  tq::FileContents contents_;
  tq::LoadOutcome outcome_ = tq::LoadOutcome::NotTried;
};
