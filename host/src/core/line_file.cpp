#include "line_file.h"

#include <fstream>

namespace hullhost {

LineFile LineFile::ReadLocal(const std::string &path) {
    std::vector<std::string> lines;
    std::ifstream in(path, std::ios::binary);
    std::string line;
    while (std::getline(in, line)) {
        if (!line.empty() && line.back() == '\r')
            line.pop_back();
        lines.push_back(std::move(line));
    }
    return LineFile(std::move(lines));
}

bool LineFile::NextLine(char *&line) {
    if (next_ >= lines_.size())
        return false;
    const std::string &raw = lines_[next_++];
    size_t start = raw.find_first_not_of(" \t");
    current_ = start == std::string::npos ? std::string() : raw.substr(start);
    line = current_.data();
    return true;
}

} // namespace hullhost
