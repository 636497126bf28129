// A fresh folder for one test, removed with everything in it at the end, and
// small helpers for the files in it.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace hosttest {

class TempDir {
  public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir &) = delete;
    TempDir &operator=(const TempDir &) = delete;

    const std::filesystem::path &Path() const { return path_; }
    std::string operator/(const std::string &relative) const { return (path_ / relative).string(); }

  private:
    std::filesystem::path path_;
};

// Writes a file, making its folders.
void WriteText(const std::string &path, const std::string &text);
// The whole file; empty if it can't be read.
std::string ReadText(const std::string &path);
// The names of the entries of a folder, sorted.
std::vector<std::string> FolderEntries(const std::string &folder);

} // namespace hosttest
