// Why an operation of the library did not do what it was asked: the answers of
// CTQSymbolListMgr::GetLastProblem.
#pragma once

// Programs may store and compare these numbers: do not change.
enum TQProblem : int {
  TQProblemNone = 0,

  // --- Starting ---
  TQProblemVersion = 1, // headers, tqSymbol and tqFramework are not of versions that fit together
  TQProblemService = 2, // a service of the terminal refused what was needed

  // --- Files; the text names the path ---
  TQProblemNoFile = 10,         // no data directory or an empty path was given
  TQProblemFileMissing = 11,    // there is no such file
  TQProblemFileUnreadable = 12, // the system does not let it be read
  TQProblemFileTooLarge = 13,   // larger than any file that is read
  TQProblemFileDamaged = 14,    // not a well-formed document
  TQProblemFileForeign = 15,    // a document, but not of the kind that was expected
  TQProblemFileCutShort = 16,   // a list of it is bad: that one and those behind it were not loaded
  TQProblemFileNotKept = 17,    // not saved: what the file holds could not be copied aside first
  TQProblemFileNotWritten = 18, // not saved: it could not be opened or written
  TQProblemFileKept = 19,       // saved, after what the file held was copied aside
  // Saved, after what another program, or another manager, had written into the file was copied
  // aside: two of them work in one directory.
  TQProblemFileShared = 20,
  TQProblemTooMuch = 21, // more than a list file holds
  TQProblemMemory = 22,  // no memory for the text of a file
  // Saved, but a list has an apostrophe, "&" or "<" in its name or its symbols: the next load
  // refuses the file, with all of its lists. The text names the list.
  TQProblemFileUnloadable = 23,

  // --- Arguments ---
  TQProblemNull = 30,    // a pointer that is needed is null
  TQProblemName = 31,    // no list can bear the name
  TQProblemId = 32,      // no list can bear the identifier
  TQProblemSymbols = 33, // there are no symbols
  TQProblemTaken = 34,   // another list has the name or the identifier
  TQProblemNoList = 35,  // there is no such list
  TQProblemNoEntry = 36, // the list has no such entry
  TQProblemEntry = 37,   // the text cannot be an entry of the list, or is one already
  TQProblemRange = 38,   // no such type, product or number
  TQProblemOff = 39,     // Init was told not to keep lists of this kind
  // Done, but without bytes that are no text of the process's code page: halves of characters,
  // control bytes. Text in UTF-8 is mostly such.
  TQProblemLeftOut = 40,

  // --- Dialogs ---
  TQProblemDialog = 50, // it could not be made, or another one of its family is open

  // --- Mistakes that only the debug mode finds ---
  TQProblemMisuse = 60, // of the caller's
  TQProblemBroken = 61, // of a service's: what it handed out breaks the contract of its header
};

// What a name or an id string has against being stored: the bits of CheckListName and
// CheckSymbolIds. Do not change.
enum TQTextFault : int {
  TQTextEmpty = 1,   // nothing, or nothing but blanks
  TQTextTooLong = 2, // it would be cut; a symbol: no record of a service can have the id
  // An apostrophe, "&" or "<": it would be kept, and the list file that contains it does not load
  // again.
  TQTextUnloadable = 4,
  TQTextBroken = 8, // halves of double-byte characters, or control bytes: they would be left out
  TQTextGaps = 16,  // symbols: an entry between two commas, or at an end, is empty
};
