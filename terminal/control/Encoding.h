// Code pages of the stand-in terminal. Its records carry both interface languages side by side, so
// here the code page goes by the language asked for, not by the language of the moment.
//
// Elsewhere Traditional is code page 950 and Simplified 936. On Windows both are the process's ANSI
// code page: a process has only one. Characters are as wide in either, so a text of any language
// may be cut with tq::CopyCut.
#pragma once

#include <string>
#include <string_view>

namespace standin {

enum class Language { Traditional, Simplified };

// UTF-8 to the language's code page. What the code page lacks, and each byte that is no UTF-8,
// becomes "?".
std::string Encode(std::string_view utf8, Language language);
// The code page's text as UTF-8; each character that it does not know becomes "?", or on Windows a
// private one.
std::string Decode(std::string_view text, Language language);

// The language that the process starts in.
Language StartLanguage();

} // namespace standin
