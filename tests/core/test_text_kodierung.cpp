#include "core/text_kodierung.h"

#include <gtest/gtest.h>

#include <string>

namespace quor {
namespace {

std::string AlleBytes() {
  std::string b;
  for (int i = 0; i < 256; ++i)
    b += static_cast<char>(i);
  return b;
}

TEST(TextKodierung, EveryByteMapsAndComesBack) {
  const std::string alle = AlleBytes();
  const std::string utf8 = Win1252ZuUtf8(alle);
  EXPECT_TRUE(IstUtf8(utf8));
  EXPECT_EQ(Utf8ZuWin1252(utf8), alle);
  EXPECT_EQ(Win1252ZuUtf8("\xE4\xDF\xB0\xB2\x80"), "äß°²€");
  // spot checks against the published Windows-1252 table
  EXPECT_EQ(Win1252ZuUtf8("\x82\x84\x85\x8A\x93\x94\x96\x97\x99\x9F"), "‚„…Š“”–—™Ÿ");
  // the undefined bytes become the C1 controls of the same number
  EXPECT_EQ(Win1252ZuUtf8("\x81\x8D\x8F\x90\x9D"), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
}

TEST(TextKodierung, WhatWindows1252CannotHoldBecomesQuestionMark) {
  EXPECT_EQ(Utf8ZuWin1252("T = 中 K"), "T = ? K");
  EXPECT_EQ(Utf8ZuWin1252("\xC2\x80"), "?");    // U+0080: its byte 0x80 is the euro sign
  EXPECT_EQ(Utf8ZuWin1252("\xC2\x81"), "\x81"); // a C1 control that has a byte of its own
}

TEST(TextKodierung, InvalidUtf8BytesBecomeQuestionMarks) {
  EXPECT_EQ(Utf8ZuWin1252("a\xFF"
                          "b"),
            "a?b");
  EXPECT_EQ(Utf8ZuWin1252("\x80"), "?");
  EXPECT_EQ(Utf8ZuWin1252("x\xE2\x82"), "x??"); // cut off at the end
  EXPECT_EQ(Utf8ZuWin1252("\xC0\xAF"), "??");   // overlong '/'
  EXPECT_EQ(Utf8ZuWin1252("\xED\xA0\x80"
                          "a"),
            "???a"); // surrogate
}

TEST(TextKodierung, IstUtf8IsStrict) {
  for (const char* gut : {"", "abc", "ä", "€", "😀", "\xF4\x8F\xBF\xBF"})
    EXPECT_TRUE(IstUtf8(gut)) << gut;
  EXPECT_TRUE(IstUtf8(std::string("a\0b", 3)));
  const char* schlecht[] = {"\xC0\x80",     "\xE0\x80\x80",     "\xF0\x80\x80\x80",
                            "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xF5\x80\x80\x80",
                            "\xE4",         "ab\xE2\x82",       "\xBF",
                            "\xFE",         "\xC3\x28"};
  for (const char* s : schlecht)
    EXPECT_FALSE(IstUtf8(s)) << s;
}

TEST(TextKodierung, FileTextIsUtf8OrElseWindows1252) {
  EXPECT_EQ(DateitextZuUtf8("\xEF\xBB\xBF"
                            "M\xC3\xBCller"),
            "Müller");
  EXPECT_EQ(DateitextZuUtf8("M\xFCller"), "Müller");
  EXPECT_EQ(DateitextZuUtf8("\xEF\xBB\xBF"
                            "\xB0"
                            "C"),
            "°C"); // mark dropped, rest not UTF-8
  // one invalid byte makes the whole file Windows-1252
  EXPECT_EQ(DateitextZuUtf8("\xC3\xA4 \xFC"), "Ã¤ ü");
  EXPECT_EQ(DateitextZuUtf8(std::string("a\0b", 3)), std::string("a\0b", 3));
}

} // namespace
} // namespace quor
