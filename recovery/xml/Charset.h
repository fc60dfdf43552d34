// The encodings that text of a list file may be in, and which of them bytes are likely to be in.
#pragma once

#include <cstddef>
#include <string_view>

namespace tq {

enum class Charset { Ascii, Latin1, Utf8, Big5, Gbk };

// Length in bytes of the character at `at`, whose first byte is above 0x7F; 0 when the bytes cannot
// be one.
std::size_t CharLength(Charset charset, const char* at, const char* end);

// Whether every character of the text is one of the encoding.
bool IsTextOf(Charset charset, std::string_view text);

// Whether all bytes are below 0x80.
bool IsPlain(std::string_view text);

// Which of UTF-8, Big5, GBK and `expected` the text is in, by the structure of its bytes and by how
// often characters are used. `trust` is how sure `expected` is without looking: 0 for not at all; a
// rare character in place of a usual one weighs about 5, one that cannot be 16. Linear.
Charset LikeliestCharset(std::string_view text, Charset expected, double trust);

} // namespace tq
