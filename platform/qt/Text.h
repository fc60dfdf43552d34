// Text between windows in memory, which is in the terminal's code page, and Qt. Internal.
#pragma once

#include <QString>

#include "platform/headless/Windows.h"

namespace tq::qt {

QString ToQt(headless::TextCode code, const CString& text);
// A character that the code page lacks becomes "?", never one that looks similar.
CString FromQt(headless::TextCode code, const QString& text);

// The same for texts that the user edits: what the system's tables do not know, such as characters
// that users defined and half ones, comes back as it was. A character of a private plane stands for
// it meanwhile, for which no font has a shape.
QString ToEditable(headless::TextCode code, const CString& text);
CString FromEditable(headless::TextCode code, const QString& text);
// Of text from elsewhere, in which those characters mean something else: they become "?".
QString WithoutStandIns(const QString& text);

// How many of the first characters of `text`, in QChars and never half a surrogate pair, take at
// most so many bytes as FromEditable makes of them.
qsizetype CutToBytes(headless::TextCode code, const QString& text, int bytes);

} // namespace tq::qt
