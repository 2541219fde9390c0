// The search over the help pages: the words typed, the plain text of each page of the help folder,
// and the pages that hold every word, best first.
#pragma once

#include <string>
#include <vector>

namespace quor {

struct HilfeTreffer {
  std::string datei; // the page's file name inside the help folder
  std::string titel; // the page's <title>
  int anzahl = 0;    // how often the words occur on the page, all together
};

// The readable text of a page (the title included): tags, comments, style and script blocks removed,
// the common entities decoded, runs of white space as one blank.
std::string HilfeSeitenText(const std::string& html);

// The text of the page's <title>, empty when it has none.
std::string HilfeSeitenTitel(const std::string& html);

// Upper-case letters as lower case: ASCII and the Latin letters with accents or umlauts (UTF-8).
std::string HilfeKlein(const std::string& text);

// The words of a search input in lower case: split at blanks and punctuation, duplicates once.
std::vector<std::string> HilfeSuchWoerter(const std::string& eingabe);

// How often a word (lower case) occurs in a lower-case text, overlaps not counted.
int HilfeZaehle(const std::string& textKlein, const std::string& wort);

// The pages of the folder (*.html) whose text holds every word of the input, most occurrences first,
// equal counts by title; nothing for an input without words.
std::vector<HilfeTreffer> SucheInHilfe(const std::string& verzeichnis, const std::string& eingabe);

} // namespace quor
