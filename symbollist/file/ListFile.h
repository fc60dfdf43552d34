// The list file: how it is named, written and read. docs/list-file.md describes it byte for byte.
#pragma once

#include <functional>
#include <string>
#include <utility>

#include "platform/framework/CString.h"
#include "platform/xml/XmlDocument.h"
#include "symbollist/OwnedLists.h"
#include "symbollist/file/KeptFiles.h"

namespace tq {

// Names of the list files, appended to the data directory.
inline constexpr char kListFileName[] = "\\SymbolList.xml";
inline constexpr char kBackupFileName[] = "\\SymbolList_Backup.xml";

// The XML declaration of the interface's language, with its line feed: the first line of every
// file that the library writes.
const char* FileDeclaration();
// That of one language.
const char* DeclarationOf(bool traditionalChinese);

// The whole document: declaration, the default index, and one line for each list in order. With a
// negative default index no list is written: that is the file of a manager that has no lists. Text
// is in the process's ANSI code page, unescaped.
std::string ListFileText(const ListVector& lists, int defaultIndex);

enum class TextResult {
  Made,
  TooMuch, // beyond the limits for loading (platform/xml/XmlText.h): it could not be loaded again
  NoMemory,
};

// The same for a save. Unless Made, `text` is not to be used.
TextResult MakeListFileText(const ListVector& lists, int defaultIndex, std::string& text);

// Whether `file`, the bytes of a list file, holds the default index and the lists that `text`, of
// ListFileText, holds: identifiers, names and symbol strings.
bool HoldsSameLists(const std::string& file, const std::string& text);

// An upper bound of that text's length, a little more than it.
size_t ListFileLength(const ListVector& lists);

} // namespace tq

// Reads a list file.
class CXMLDOMParser {
public:
  // Called for each list after its ids have been resolved, before the next one is read.
  using Finish = std::function<void(CSymbolList&)>;

  // Takes what ReadContents gave, up to kXmlSizeLimit, and reads it through the platform's DOM.
  // True only for a well-formed document; a missing file, one over the size limit or one that
  // cannot be read is none. Outcome() tells which.
  bool Load(tq::ReadResult read, tq::FileContents contents);
  // How the latest load, or reading of its lists, ended.
  tq::LoadOutcome Outcome() const { return outcome_; }
  // The file's bytes, which are the caller's from then on.
  tq::FileContents TakeContents() { return std::move(contents_); }

  // The attribute DefaultIdx of the SymbolList element, a 16-bit signed decimal number. 0, with a
  // line in the log, when it is missing or no such number.
  static int GetDefaultIndex(const tq::XmlElement& symbolList);

  // Loads the file and puts its lists, in document order, behind those of `lists`, and its default
  // index into `defaultIndex`. Without a document, or when it is no list file, both stay as they
  // were; a bad list ends the reading, with the lists in front of it. Outcome() tells which.
  void ReadLists(tq::ReadResult read, tq::FileContents contents, const Finish& finish,
                 tq::ListVector& lists, int& defaultIndex);

  // Status answers in their two forms: <Result Status='%d'>%s</Result> and
  // <Result Status='%d' Reason='%s'>%s</Result>. Nothing is escaped.
  static CString FormatStatus(int status, const char* body);
  static CString FormatStatus(int status, const char* reason, const char* body);

private:
  tq::LoadOutcome ReadDocument(const Finish& finish, tq::ListVector& lists, int& defaultIndex);

  tq::XmlDocument document_;
  tq::FileContents contents_;
  tq::LoadOutcome outcome_ = tq::LoadOutcome::NotTried;
};
