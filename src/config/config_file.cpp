#include "config/config_file.h"

#include <cstdio>
#include <memory>

#include "Platform.h"

namespace {

struct FileCloser {
    void operator()(std::FILE *file) const { std::fclose(file); }
};

} // namespace

void ReadConfigFile(std::string path, ConfigTable &plain, SectionTable &sections) {
    if (path.empty()) {
        return;
    }
    const std::unique_ptr<std::FILE, FileCloser> file(OpenLocalFile(path.c_str(), "rb"));
    if (!file) {
        return;
    }
    std::string text;
    char chunk[4096];
    std::size_t got = 0;
    while ((got = std::fread(chunk, 1, sizeof chunk, file.get())) > 0) {
        text.append(chunk, got);
    }
    ParseConfigText(text, plain, sections);
}
