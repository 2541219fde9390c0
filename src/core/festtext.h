// Fixed-width texts: table rows and report columns are measured in characters, not bytes, so that
// German umlauts and superscripts count once.
#pragma once

#include <string>
#include <string_view>

namespace quor {

// Number of characters (code points) of a UTF-8 text.
std::size_t Utf8Laenge(std::string_view utf8);

// The text cut or padded with blanks on the right to exactly `breite` characters.
std::string FestText(std::string_view utf8, std::size_t breite);

// The text padded with blanks on the left to at least `breite` characters (right-justified).
std::string RechtsBuendig(std::string_view utf8, std::size_t breite);

// The text without blanks and tabs at both ends.
std::string Trim(std::string_view text);
std::string_view TrimAnsicht(std::string_view text);

} // namespace quor
