// The code pages of the stand-in terminal. Its records hold both interface languages, so the code
// page here follows the language asked for and not the current one.
//
// On Linux Traditional is code page 950 and Simplified 936. On Windows both are the ANSI code page
// of the process, which has only one. Characters are equally wide in either, so a text of any
// language may be cut with tq::CopyCut.
#pragma once

#include <string>
#include <string_view>

namespace standin {

enum class Language { Traditional, Simplified };

// UTF-8 to the language's code page. Characters that the code page lacks, and bytes that are no
// UTF-8, become "?".
std::string Encode(std::string_view utf8, Language language);
// From the language's code page to UTF-8. Unknown characters become "?", on Windows perhaps private
// ones.
std::string Decode(std::string_view text, Language language);

// The initial language of the process.
Language StartLanguage();

} // namespace standin
