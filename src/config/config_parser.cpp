// The line syntax of configuration files: plain keys "Key = value" outside
// sections, and sections "Name = {" ... "}" whose lines are "Key value".
#include "config/config_file.h"

#include "config/text_ops.h"

namespace {

struct ParseState {
    std::string section;
    bool inSection = false;
};

// Removes the blank directly before and the one directly after the first equals
// sign; returns the sign's new position, or npos without one.
std::size_t TightenEquals(std::string &line) {
    std::size_t equals = line.find('=');
    if (equals == std::string::npos) {
        return equals;
    }
    if (equals + 1 < line.size() && line[equals + 1] == ' ') {
        line.erase(equals + 1, 1);
    }
    if (equals > 0 && line[equals - 1] == ' ') {
        line.erase(--equals, 1);
    }
    return equals;
}

void ParseLine(std::string line, ParseState &state, ConfigTable &plain, SectionTable &sections) {
    CleanConfigLine(line, QuoteHandling::KeepQuoted);
    if (line.empty()) {
        return;
    }
    std::size_t equals = TightenEquals(line);
    const bool hasEquals = equals != std::string::npos;

    if (hasEquals && equals + 1 < line.size() && line[equals + 1] == '{') {
        state.inSection = true;
        state.section = line.substr(0, equals);
    }
    if (hasEquals && !state.inSection) {
        ExpandMacros(line);
        equals = line.find('=');
        if (equals != std::string::npos) {
            plain.Insert(line.substr(0, equals), line.substr(equals + 1));
        }
    }
    if (!line.empty() && line.front() == '}') {
        state.inSection = false;
    }
    if (state.inSection && !hasEquals) {
        // A section line without a blank has no value and is skipped.
        const std::size_t blank = line.find(' ');
        if (blank == std::string::npos) {
            return;
        }
        std::string value = line.substr(blank + 1);
        ExpandMacros(value);
        sections.Section(state.section).Insert(line.substr(0, blank), value);
    }
}

} // namespace

void ParseConfigText(std::string_view text, ConfigTable &plain, SectionTable &sections) {
    ParseState state;
    while (!text.empty()) {
        const std::size_t feed = text.find('\n');
        std::string_view line = text.substr(0, feed);
        text.remove_prefix(feed == std::string_view::npos ? text.size() : feed + 1);
        if (!line.empty() && line.back() == '\r') {
            line.remove_suffix(1);
        }
        ParseLine(std::string(line.substr(0, kMaxLineLength)), state, plain, sections);
    }
}
