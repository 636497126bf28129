#include "config/text_ops.h"

namespace {

bool IsSeparator(char c) { return c == ' ' || c == '\t' || c == ',' || c == '(' || c == ')'; }

void TrimOneBlankEachEnd(std::string &text) {
    if (!text.empty() && text.front() == ' ') {
        text.erase(0, 1);
    }
    if (!text.empty() && text.back() == ' ') {
        text.pop_back();
    }
}

} // namespace

void LimitLineLength(std::string &text) {
    if (text.size() > kMaxLineLength) {
        text.resize(kMaxLineLength);
    }
}

void CleanConfigLine(std::string &line, QuoteHandling quotes) {
    // The result is built back to front, so a separator run costs one pass and a
    // semicolon simply drops everything collected behind it.
    LimitLineLength(line);
    std::string reversed;
    reversed.reserve(line.size());
    bool inQuotes = false;
    std::size_t i = line.size();
    while (i > 0) {
        --i;
        char c = line[i];
        if (quotes == QuoteHandling::KeepQuoted && c == '"') {
            inQuotes = !inQuotes;
        } else if (!inQuotes) {
            if (c == ';') {
                reversed.clear();
                continue;
            }
            if (IsSeparator(c)) {
                c = ' ';
                while (i > 0 && IsSeparator(line[i - 1])) {
                    --i;
                }
            }
        }
        reversed.push_back(c);
    }
    line.assign(reversed.rbegin(), reversed.rend());
    TrimOneBlankEachEnd(line);
}

void NormaliseLine(std::string &text) { CleanConfigLine(text, QuoteHandling::IgnoreQuotes); }

std::vector<std::string> SplitQuoted(std::string_view text) {
    text = text.substr(0, kMaxLineLength);
    std::vector<std::string> tokens;
    std::size_t start = 0;
    std::size_t openQuote = std::string_view::npos;
    for (std::size_t pos = 0; pos <= text.size(); ++pos) {
        const bool atEnd = pos == text.size();
        if (!atEnd && text[pos] == '"') {
            if (openQuote == std::string_view::npos) {
                openQuote = pos;
            } else {
                tokens.emplace_back(text.substr(openQuote + 1, pos - openQuote - 1));
                openQuote = std::string_view::npos;
                start = pos + 1;
            }
            continue;
        }
        if (openQuote == std::string_view::npos && (atEnd || text[pos] == ' ')) {
            tokens.emplace_back(text.substr(start, pos - start));
            start = pos + 1;
        }
    }
    return tokens;
}

std::vector<std::string> SplitBy(std::string &text, char separator) {
    std::vector<std::string> tokens;
    if (text.empty()) {
        return tokens;
    }
    NormaliseLine(text);
    ExpandMacros(text);
    std::size_t start = 0;
    for (std::size_t cut = text.find(separator); cut != std::string::npos;
         cut = text.find(separator, start)) {
        tokens.push_back(text.substr(start, cut - start));
        start = cut + 1;
    }
    tokens.push_back(text.substr(start));
    return tokens;
}
