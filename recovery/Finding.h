// What is wrong with a file of lists, and where.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace tq {

enum class Fault {
  // Of the file as a whole.
  Empty,          // no byte, or nothing but zero bytes
  NoLists,        // nothing in it is a list
  Foreign,        // well-formed, and another kind of document
  Declaration,    // the XML declaration is missing, broken or names an unknown encoding
  WrongEncoding,  // it names one encoding, and the text is in another
  DocumentType,   // a document type declaration: such a file is never loaded
  CutOff,         // the end is missing
  Overwritten,    // two files are written over each other
  ZeroBytes,      // a run of zero bytes
  OutsideOfLists, // bytes that belong to nothing
  BadIndex,       // the default index is missing or no 16-bit number
  Limit,          // more than the library loads: size, nesting, pieces of markup, names
  // Of one list.
  NoId,         // the element has no identifier, or an empty one; a new one was made
  RepeatedId,   // another list has the identifier; a new one was made
  RepeatedList, // a list of the same identifier, name and symbols; one of them is left out
  BrokenMarkup, // a tag, an attribute's name, a quote, an equals sign is damaged
  StrayApostrophe,
  StrayAmpersand,
  StrayLess,
  HalfCharacter, // half of a double-byte character, or bytes that are none of the encoding
  ControlByte,   // a byte that no document may hold, zero among them
  OtherEncoding, // the list's text is in another encoding than the file's
  NotCarried,    // a character that the encoding asked for lacks
  LostName,      // nothing is left of the name
  LostSymbol,    // a symbol whose id is damaged: it is left out, never guessed
  LostSymbols,   // the end of the symbols, or all of them, is missing
  TooLong,       // an identifier or a name beyond what a list keeps
};

struct Finding {
  Fault fault = Fault::Empty;
  std::size_t offset = 0; // of the byte, from 0
  std::size_t line = 1;   // from 1; lines end with a line feed
  std::size_t column = 1; // bytes from 1
  std::string text;       // the damaged piece as it stands in the file, shortened; may be empty
};

// The fault in words, in English, without a full stop: "an ampersand that is not written as &amp;".
std::string_view WordsOf(Fault fault);

} // namespace tq
