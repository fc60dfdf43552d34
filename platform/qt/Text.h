// Text between windows in memory, which is in the terminal's code page, and Qt. Internal.
#pragma once

#include <QString>

#include "platform/headless/Windows.h"

namespace tq::qt {

QString ToQt(headless::TextCode code, const CString& text);
// A character that the code page lacks becomes "?", never one that looks similar.
CString FromQt(headless::TextCode code, const QString& text);

// How many of the first characters of `text`, in QChars and never half a surrogate pair, take at
// most so many bytes.
qsizetype CutToBytes(headless::TextCode code, const QString& text, int bytes);

} // namespace tq::qt
