// Text encodings: strings are UTF-8 in memory, files and the binary database use Windows-1252.
#pragma once

#include <string>
#include <string_view>

namespace quor {

// Every byte maps to one character; the five bytes that Windows-1252 leaves undefined
// (0x81, 0x8D, 0x8F, 0x90, 0x9D) map to the C1 control characters of the same number, as Windows does.
std::string Win1252ZuUtf8(std::string_view bytes);

// Characters that Windows-1252 cannot hold, and each byte of invalid UTF-8, become '?'.
std::string Utf8ZuWin1252(std::string_view utf8);

// Strictly valid UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
bool IstUtf8(std::string_view bytes);

// Text of a file as read: a UTF-8 byte order mark is dropped; valid UTF-8 stays as it is, anything
// else is taken as Windows-1252.
std::string DateitextZuUtf8(std::string_view bytes);

} // namespace quor
