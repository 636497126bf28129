#include "temp_dir.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <stdexcept>
#include <stdlib.h>
#include <vector>

namespace hosttest {

TempDir::TempDir() {
    std::string pattern = (std::filesystem::temp_directory_path() / "hosttest.XXXXXX").string();
    if (!::mkdtemp(pattern.data()))
        throw std::runtime_error("can't make a temporary folder");
    path_ = pattern;
}

TempDir::~TempDir() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
}

void WriteText(const std::string &path, const std::string &text) {
    std::filesystem::create_directories(std::filesystem::path(path).parent_path());
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out << text;
}

std::string ReadText(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
}

std::vector<std::string> FolderEntries(const std::string &folder) {
    std::vector<std::string> names;
    for (const auto &entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace hosttest
