// The text operations that every configuration and scenario parser uses: line
// cleaning, macro words and the two tokenisers.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

// The longest line, and the longest text given to the operations below, that is
// valid; longer text is cut to this length, after macro expansion too.
inline constexpr std::size_t kMaxLineLength = 4095;

// Cuts `text` to kMaxLineLength characters.
void LimitLineLength(std::string &text);

enum class QuoteHandling {
    KeepQuoted,   // text between double quotes is left alone
    IgnoreQuotes, // double quotes are ordinary characters
};

// Cleans one line: scanning from its end, a semicolon ends the line (so the
// leftmost one counts), tab, comma and parentheses become blanks, and each run of
// such separators and blanks shrinks to one blank. With KeepQuoted nothing inside
// double quotes is touched. Then one leading and one trailing blank are removed.
void CleanConfigLine(std::string &line, QuoteHandling quotes);

// CleanConfigLine without quote logic: every semicolon ends the text.
void NormaliseLine(std::string &text);

// Removes the label words ("pos ", "Mass ", " RR ", ...) at their first
// occurrence, then replaces every occurrence of the value words ("zminus",
// "cos45d", ...) by their numbers. Literal and case-sensitive.
void ExpandMacros(std::string &text);

// Splits at blanks; double quotes group text with its blanks. A closing quote is
// followed by one empty token when a blank or the end follows it, the empty text
// gives one empty token, and a quote left open gives no further token.
std::vector<std::string> SplitQuoted(std::string_view text);

// Normalises and expands `text` in place, then cuts it at each `separator`. The
// empty text gives no token; a separator at the end gives a last empty token.
std::vector<std::string> SplitBy(std::string &text, char separator);
