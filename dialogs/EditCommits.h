// What happens to a working copy when its dialog has closed: comparing it with what is stored,
// storing, saving, a line in the log, and telling the terminal. Dialogs write to the manager's
// lists nowhere else.
//
// A save that fails shows its message and is told to the terminal all the same, for the lists in
// memory have changed. The log lines name the operation that opened the dialog; their text is Big5,
// byte for byte, whatever the terminal's language.
#pragma once

#include "dialogs/WorkingCopy.h"

class CTQSymbolListMgr;

namespace tq {

// The list editor (DoSymbolListUI). `countBefore` is the number of user lists when it was opened.
// Nothing happens when the copy does not differ. Otherwise the terminal gets code 40 with
// "ListCntChange" when the number of lists is another one now, else "ListNameChange" when one of
// them has another name than the one that stood in its place, else "". The copy is empty
// afterwards.
void CommitLists(CTQSymbolListMgr& manager, WorkingCopy& copy, int countBefore);

// The cloud list editor (DoCloudSymbolListUI): the same with the cloud lists and code 41. Nothing
// is saved; each list goes into the cloud map as well.
void CommitCloudLists(CTQSymbolListMgr& manager, WorkingCopy& copy, int countBefore);

// Adding symbols to a list (DoSymbolAddUI): a change is stored, saved and told with code 4. Code 40
// is told in every case.
void CommitAddedSymbols(CTQSymbolListMgr& manager, WorkingCopy& copy);

// Adding one symbol to lists (DoGroupSymbolAdd): a change is stored, saved and told with code 40.
void CommitSymbolAddedToLists(CTQSymbolListMgr& manager, WorkingCopy& copy);

// The content editor on one list (DoGroupListUI): stores the edited list in the place of the one
// with its identifier and saves, without telling the terminal. False, and nothing happens, when
// there is no such list or it is the same.
bool CommitEditedList(CTQSymbolListMgr& manager, const CSymbolList& edited);

// The same with a cloud list (DoCloudGroupListUI): stored in the cloud lists and in the cloud map;
// then the cloud groups are loaded anew. Nothing is saved.
bool CommitEditedCloudList(CTQSymbolListMgr& manager, const CSymbolList& edited);

// The selection dialog (DoSelectUI) has changed lists itself: the log line, and code 40.
void ReportChangedBySelection();

} // namespace tq
