// A text file as the host hands it to modules: a scenario block or a file
// opened with oapiOpenFile, read line by line and written line by line.
#pragma once

#include <string>
#include <vector>

#include "OrbiterAPI.h"

namespace hullhost {

class LineFile {
  public:
    LineFile() = default;
    explicit LineFile(std::vector<std::string> lines) : lines_(std::move(lines)) {}
    // The lines of a local file; none if it can't be read.
    static LineFile ReadLocal(const std::string &path);

    FILEHANDLE Handle() { return reinterpret_cast<FILEHANDLE>(this); }
    static LineFile *From(FILEHANDLE h) { return reinterpret_cast<LineFile *>(h); }

    // The next line without its leading blanks and tabs, in a buffer that
    // stays valid until the next call. False at the end.
    bool NextLine(char *&line);

    void Write(std::string line) { written_.push_back(std::move(line)); }
    const std::vector<std::string> &Written() const { return written_; }

  private:
    std::vector<std::string> lines_;
    size_t next_ = 0;
    std::string current_;
    std::vector<std::string> written_;
};

} // namespace hullhost
