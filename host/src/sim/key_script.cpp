#include "key_script.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "core/printable_text.h"
#include "key_names.h"
#include "usage_error.h"

namespace hullhost::sim {

namespace {

struct Modifier {
    std::string_view prefix;
    DWORD key;
};

constexpr Modifier kModifiers[] = {
    {"CTRL+", OAPI_KEY_LCONTROL},
    {"SHIFT+", OAPI_KEY_LSHIFT},
    {"ALT+", OAPI_KEY_LALT},
};

bool StartsWithNoCase(std::string_view s, std::string_view prefix) {
    return s.size() >= prefix.size() &&
           std::equal(prefix.begin(), prefix.end(), s.begin(),
                      [](char p, char c) { return p == std::toupper(static_cast<unsigned char>(c)); });
}

std::optional<double> Number(std::string_view word) {
    double d = 0.0;
    auto [end, ec] = std::from_chars(word.data(), word.data() + word.size(), d);
    if (ec != std::errc() || end != word.data() + word.size() || !std::isfinite(d))
        return std::nullopt;
    return d;
}

std::vector<std::string_view> Words(std::string_view line) {
    std::vector<std::string_view> words;
    size_t pos = 0;
    while ((pos = line.find_first_not_of(" \t\r", pos)) != std::string_view::npos) {
        size_t end = line.find_first_of(" \t\r", pos);
        words.push_back(line.substr(pos, end == std::string_view::npos ? end : end - pos));
        pos = end;
    }
    return words;
}

class LineParser {
  public:
    LineParser(const std::string &source, int line) : source_(source), line_(line) {}

    KeyAction Parse(const std::vector<std::string_view> &words) const {
        if (words.size() < 2 || words.size() > 3)
            Fail("expected 'TIME KEY [SECONDS]'");
        KeyAction action;
        action.line = line_;
        auto time = Number(words[0]);
        if (!time || *time < 0)
            Fail("bad time " + Quoted(words[0]) + ": expected seconds, 0 or more");
        action.time = *time;
        ParseKey(words[1], action);
        if (words.size() == 3) {
            auto hold = Number(words[2]);
            if (!hold || *hold <= 0)
                Fail("bad hold time " + Quoted(words[2]) + ": expected seconds, more than 0");
            action.hold = hold;
        }
        return action;
    }

  private:
    [[noreturn]] void Fail(const std::string &message) const {
        throw UsageError(source_ + ":" + std::to_string(line_) + ": " + message);
    }

    void ParseKey(std::string_view word, KeyAction &action) const {
        std::string_view rest = word;
        for (bool found = true; found;) {
            found = false;
            for (const auto &m : kModifiers) {
                if (StartsWithNoCase(rest, m.prefix)) {
                    if (std::find(action.modifiers.begin(), action.modifiers.end(), m.key) ==
                        action.modifiers.end())
                        action.modifiers.push_back(m.key);
                    rest.remove_prefix(m.prefix.size());
                    found = true;
                }
            }
        }
        auto code = KeyCode(rest);
        if (!code)
            Fail("unknown key " + Quoted(word));
        action.key = *code;
    }

    const std::string &source_;
    int line_;
};

} // namespace

std::vector<KeyAction> ParseKeyScript(std::string_view text, const std::string &source) {
    std::vector<KeyAction> actions;
    int lineNo = 0;
    while (!text.empty()) {
        ++lineNo;
        size_t nl = text.find('\n');
        std::string_view line = text.substr(0, nl);
        text.remove_prefix(nl == std::string_view::npos ? text.size() : nl + 1);
        line = line.substr(0, line.find(';'));
        auto words = Words(line);
        if (!words.empty())
            actions.push_back(LineParser(source, lineNo).Parse(words));
    }
    std::stable_sort(actions.begin(), actions.end(),
                     [](const KeyAction &a, const KeyAction &b) { return a.time < b.time; });
    return actions;
}

std::vector<KeyAction> ReadKeyScript(const std::string &path) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec))
        throw std::runtime_error("can't read key script '" + path + "': no such file");
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    if (!in)
        throw std::runtime_error("can't read key script '" + path + "'");
    return ParseKeyScript(text.str(), path);
}

} // namespace hullhost::sim
