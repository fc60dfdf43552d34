// Commits a working copy after its dialog has closed: compares it with the stored lists, stores and
// saves it, writes a line in the log, and notifies the terminal. Dialogs change the manager's lists
// nowhere else.
//
// What others did to the lists while the dialog was up is taken in first: a copy would undo it, and
// a list that the terminal added meanwhile would be lost.
//
// A failed save shows its message, and the terminal is notified all the same, because the lists in
// memory have changed. The log lines name the operation that opened the dialog; their text is Big5,
// byte for byte, whatever the terminal's language.
#pragma once

#include "dialogs/WorkingCopy.h"

class CTQSymbolListMgr;

namespace tq {

// The list editor (DoSymbolListUI). `countBefore` is the number of user lists when it was opened.
// Does nothing when the copy does not differ. Otherwise sends code 40 with "ListCntChange" if the
// number of lists has changed, else "ListNameChange" if a name at any position has changed, else
// "". Empties the copy.
void CommitLists(CTQSymbolListMgr& manager, WorkingCopy& copy, int countBefore);

// The cloud list editor (DoCloudSymbolListUI): the same for the cloud lists, with code 41. Nothing
// is saved; each list is also put into the cloud map.
void CommitCloudLists(CTQSymbolListMgr& manager, WorkingCopy& copy, int countBefore);

// Adding symbols to a list (DoSymbolAddUI): a change is stored, saved and sent with code 4. Code 40
// is always sent.
void CommitAddedSymbols(CTQSymbolListMgr& manager, WorkingCopy& copy);

// Adding one symbol to lists (DoGroupSymbolAdd): a change is stored, saved and sent with code 40.
void CommitSymbolAddedToLists(CTQSymbolListMgr& manager, WorkingCopy& copy);

// The content editor of one list (DoGroupListUI): replaces the list with the same identifier and
// saves, without notifying the terminal. Returns false and does nothing when there is no such list
// or it is unchanged.
bool CommitEditedList(CTQSymbolListMgr& manager, const CSymbolList& edited);

// The same for a cloud list (DoCloudGroupListUI), which is put into the cloud lists and the cloud
// map; then the cloud groups are reloaded. Nothing is saved.
bool CommitEditedCloudList(CTQSymbolListMgr& manager, const CSymbolList& edited);

// The selection dialog (DoSelectUI) changes lists itself: writes the log line and sends code 40.
void ReportChangedBySelection();

} // namespace tq
