#include "scenario_file.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

#include "core/printable_text.h"

namespace hullhost {

namespace {

constexpr std::string_view kBlanks = " \t\r";

std::string_view TrimLeft(std::string_view s) {
    size_t a = s.find_first_not_of(kBlanks);
    return a == std::string_view::npos ? std::string_view() : s.substr(a);
}

std::string_view Trim(std::string_view s) {
    s = TrimLeft(s);
    size_t b = s.find_last_not_of(kBlanks);
    return b == std::string_view::npos ? std::string_view() : s.substr(0, b + 1);
}

bool EqualsNoCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return std::tolower(static_cast<unsigned char>(x)) ==
                      std::tolower(static_cast<unsigned char>(y));
           });
}

// The first word of a line and the rest after the blanks that follow it.
std::pair<std::string_view, std::string_view> SplitWord(std::string_view line) {
    line = Trim(line);
    size_t end = line.find_first_of(kBlanks);
    if (end == std::string_view::npos)
        return {line, {}};
    return {line.substr(0, end), TrimLeft(line.substr(end))};
}

std::string FormatNumber(double d) {
    char buf[64];
    auto [end, ec] = std::to_chars(buf, buf + sizeof buf, d);
    return ec == std::errc() ? std::string(buf, end) : std::string("0");
}

// The text split into lines, without their line ends: the line feed and any
// carriage returns before it.
std::vector<std::string_view> SplitLines(std::string_view text) {
    std::vector<std::string_view> lines;
    while (!text.empty()) {
        size_t nl = text.find('\n');
        std::string_view line = text.substr(0, nl);
        while (!line.empty() && line.back() == '\r')
            line.remove_suffix(1);
        lines.push_back(line);
        if (nl == std::string_view::npos)
            break;
        text.remove_prefix(nl + 1);
    }
    return lines;
}

bool IsSkipped(std::string_view line) {
    std::string_view t = Trim(line);
    return t.empty() || t.front() == ';';
}

// Reads the sections of a scenario, one line at a time.
class Parser {
  public:
    Parser(std::string_view text, const std::string &source) : lines_(SplitLines(text)), source_(source) {}

    ScenarioFile Run() {
        while (next_ < lines_.size()) {
            std::string_view line = lines_[next_++];
            if (IsSkipped(line))
                continue;
            std::string_view word = Trim(line);
            if (word == "BEGIN_DESC")
                ReadDescription();
            else if (word == "BEGIN_ENVIRONMENT")
                ReadEnvironment();
            else if (word == "BEGIN_FOCUS")
                ReadFocus();
            else if (word == "BEGIN_SHIPS")
                ReadShips();
            else if (word.starts_with("BEGIN_") && word.size() > 6 &&
                     word.find_first_of(kBlanks) == word.npos)
                ReadOther(std::string(word.substr(6)));
            else
                Fail(next_, Quoted(word) + " is outside any section");
        }
        Check();
        return std::move(scn_);
    }

  private:
    [[noreturn]] void Fail(size_t lineNo, const std::string &message) const {
        throw ScenarioError(source_ + ":" + std::to_string(lineNo) + ": " + message);
    }

    // The next line of a section that ends with `endWord`; false at its end.
    bool NextInSection(const std::string &endWord, size_t beginLine, std::string_view &line) {
        while (next_ < lines_.size()) {
            line = lines_[next_++];
            if (Trim(line) == endWord)
                return false;
            if (endWord == "END_DESC" || !IsSkipped(line))
                return true;
        }
        Fail(beginLine, "section has no " + endWord);
    }

    void ReadDescription() {
        const size_t begin = next_;
        std::string_view line;
        while (NextInSection("END_DESC", begin, line))
            scn_.description.emplace_back(line);
    }

    void ReadEnvironment() {
        const size_t begin = next_;
        std::string_view line;
        while (NextInSection("END_ENVIRONMENT", begin, line)) {
            auto [key, rest] = SplitWord(line);
            auto [unit, value] = SplitWord(rest);
            if (EqualsNoCase(key, "Date") && EqualsNoCase(unit, "MJD"))
                scn_.mjd = ParseMjd(value);
            else if (EqualsNoCase(key, "TimeAccel"))
                scn_.timeAccel = ParseTimeAccel(rest);
            else
                scn_.environment.emplace_back(Trim(line));
        }
    }

    double ParseMjd(std::string_view value) const {
        value = Trim(value);
        double mjd = 0.0;
        auto [end, ec] = std::from_chars(value.data(), value.data() + value.size(), mjd);
        if (value.empty() || ec != std::errc() || end != value.data() + value.size() || !std::isfinite(mjd))
            Fail(next_, "bad date " + Quoted(value) + ": Date MJD needs a number");
        return mjd;
    }

    double ParseTimeAccel(std::string_view value) const {
        value = Trim(value);
        double accel = 0.0;
        auto [end, ec] = std::from_chars(value.data(), value.data() + value.size(), accel);
        if (value.empty() || ec != std::errc() || end != value.data() + value.size() ||
            !std::isfinite(accel) || accel <= 0.0)
            Fail(next_, "bad time acceleration " + Quoted(value) + ": TimeAccel needs a number above 0");
        return accel;
    }

    void ReadFocus() {
        const size_t begin = next_;
        std::string_view line;
        while (NextInSection("END_FOCUS", begin, line)) {
            auto [key, name] = SplitWord(line);
            if (key != "Ship" || name.empty())
                Fail(next_, Quoted(Trim(line)) + " in BEGIN_FOCUS: expected 'Ship name'");
            scn_.focus = std::string(Trim(name));
            focusLine_ = next_;
        }
    }

    void ReadOther(std::string name) {
        OtherSection section{name, {}};
        const size_t begin = next_;
        std::string_view line;
        while (NextInSection("END_" + name, begin, line))
            section.lines.emplace_back(Trim(line));
        scn_.otherSections.push_back(std::move(section));
    }

    void ReadShips() {
        const size_t begin = next_;
        std::string_view line;
        while (NextInSection("END_SHIPS", begin, line))
            ReadVessel(Trim(line), next_);
    }

    void ReadVessel(std::string_view header, size_t headerLine) {
        size_t colon = header.find(':');
        if (colon == std::string_view::npos)
            Fail(headerLine,
                 "ship line " + Quoted(header) + " has no ':' between the vessel's name and its class");
        VesselBlock block{
            std::string(Trim(header.substr(0, colon))), std::string(Trim(header.substr(colon + 1))), {}};
        if (block.name.empty() || block.className.empty())
            Fail(headerLine, "ship line " + Quoted(header) + " needs 'name:Folder\\Class'");
        if (!names_.insert(block.name).second)
            Fail(headerLine, "vessel " + Quoted(block.name) + " is named twice");
        while (next_ < lines_.size()) {
            std::string_view line = lines_[next_++];
            std::string_view word = Trim(line);
            if (word == "END") {
                scn_.vessels.push_back(std::move(block));
                return;
            }
            if (word == "END_SHIPS")
                break;
            if (!IsSkipped(line))
                block.lines.emplace_back(TrimLeft(line));
        }
        Fail(headerLine, "vessel " + Quoted(block.name) + " has no END line");
    }

    void Check() const {
        if (scn_.vessels.empty())
            throw ScenarioError(source_ + ": no vessels (BEGIN_SHIPS ... END_SHIPS is missing or empty)");
        if (!scn_.focus.empty() && !names_.contains(scn_.focus))
            Fail(focusLine_, "the focus vessel " + Quoted(scn_.focus) + " is not among the ships");
    }

    std::vector<std::string_view> lines_;
    std::string source_;
    size_t next_ = 0;
    size_t focusLine_ = 0;
    std::set<std::string, std::less<>> names_;
    ScenarioFile scn_;
};

void WriteSection(std::ostringstream &out, const std::string &name, const std::vector<std::string> &lines) {
    out << "BEGIN_" << name << '\n';
    for (const auto &line : lines)
        out << "  " << line << '\n';
    out << "END_" << name << "\n\n";
}

} // namespace

ScenarioFile ScenarioFile::Parse(std::string_view text, const std::string &source) {
    return Parser(text, source).Run();
}

ScenarioFile ScenarioFile::Read(const std::string &path) {
    std::error_code ec;
    if (!std::filesystem::is_regular_file(path, ec))
        throw ScenarioError("can't read scenario '" + path + "': no such file");
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    if (!in)
        throw ScenarioError("can't read scenario '" + path + "'");
    return Parse(text.str(), path);
}

std::string ScenarioFile::Text() const {
    std::ostringstream out;
    if (!description.empty()) {
        out << "BEGIN_DESC\n";
        for (const auto &line : description)
            out << line << '\n';
        out << "END_DESC\n\n";
    }
    if (mjd || timeAccel || !environment.empty()) {
        std::vector<std::string> lines;
        if (mjd)
            lines.push_back("Date MJD " + FormatNumber(*mjd));
        if (timeAccel)
            lines.push_back("TimeAccel " + FormatNumber(*timeAccel));
        lines.insert(lines.end(), environment.begin(), environment.end());
        WriteSection(out, "ENVIRONMENT", lines);
    }
    if (!focus.empty())
        WriteSection(out, "FOCUS", {"Ship " + focus});
    for (const auto &section : otherSections)
        WriteSection(out, section.name, section.lines);
    out << "BEGIN_SHIPS\n";
    for (const auto &v : vessels) {
        out << v.name << ':' << v.className << '\n';
        for (const auto &line : v.lines)
            out << "  " << line << '\n';
        out << "END\n";
    }
    out << "END_SHIPS\n";
    return out.str();
}

} // namespace hullhost
