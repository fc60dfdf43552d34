// The message boxes of the dialogs, and the entries of the string table that they show.
#pragma once

#include "platform/framework/CString.h"

namespace tq {

// Known outside of the library by these numbers: do not change.
inline constexpr unsigned kMessageNoName = 48001;
inline constexpr unsigned kMessageNoDialog = 48002;
inline constexpr unsigned kMessageNothingChosen = 48004;
inline constexpr unsigned kMessageNoRecord = 48005;
inline constexpr unsigned kMessageNameTaken = 48011;
inline constexpr unsigned kMessageDeleteList = 48012;
inline constexpr unsigned kMessageNoMatch = 48018;
inline constexpr unsigned kMessageInList = 48019;
inline constexpr unsigned kMessageSeveralMatches = 48020;
inline constexpr unsigned kMessageNothingSimilar = 48021;
inline constexpr unsigned kMessageNothingTyped = 48022;
inline constexpr unsigned kMessageDuplicates = 48025; // a format
inline constexpr unsigned kMessageAddedTwice = 48029; // a format
inline constexpr unsigned kMessageReserved = 48042;   // a format
inline constexpr unsigned kMessageOneCharacter = 48065;
inline constexpr unsigned kMessageBadHeading = 48101;
// Only this library shows them.
inline constexpr unsigned kMessageUnloadable = 48203;
inline constexpr unsigned kMessageUnloadableId = 48204;

// The buttons of a message box and the one that was pressed, as the operating system numbers them.
enum class Buttons : unsigned { Ok = 0, YesNoCancel = 3, YesNo = 4 };
inline constexpr int kPressedYes = 6;

void ShowMessage(unsigned id);
void ShowMessageText(const CString& text);
// True for Yes.
bool AskUser(unsigned id, Buttons buttons = Buttons::YesNo);

// The entry, which is a format with one "%s", with `argument` in its place.
CString FormattedText(unsigned id, const CString& argument);

} // namespace tq
