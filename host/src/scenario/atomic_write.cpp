#include "atomic_write.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>
#include <unistd.h>

namespace hullhost {

namespace {

std::runtime_error WriteError(const std::string &path, int err) {
    return std::runtime_error("can't write '" + path + "': " + std::strerror(err));
}

// Writes all of `text` to `fd`; false with errno set on failure.
bool WriteAll(int fd, std::string_view text) {
    while (!text.empty()) {
        ssize_t n = ::write(fd, text.data(), text.size());
        if (n < 0) {
            if (errno == EINTR)
                continue;
            return false;
        }
        text.remove_prefix(static_cast<size_t>(n));
    }
    return true;
}

// A pipe, a terminal or a device can't be replaced by renaming, and mustn't
// be: the text goes straight into it.
void WriteStraight(const std::string &path, std::string_view text) {
    int fd = ::open(path.c_str(), O_WRONLY | O_CLOEXEC);
    if (fd < 0)
        throw WriteError(path, errno);
    const bool ok = WriteAll(fd, text);
    const int err = errno;
    ::close(fd);
    if (!ok)
        throw WriteError(path, err);
}

} // namespace

void WriteFileAtomically(const std::string &path, std::string_view text) {
    std::filesystem::path target(path);
    if (target.filename().empty())
        throw std::runtime_error("can't write '" + path + "': not a file name");
    std::error_code ec;
    const auto status = std::filesystem::status(target, ec);
    if (std::filesystem::exists(status) && !std::filesystem::is_regular_file(status)) {
        WriteStraight(path, text);
        return;
    }
    // A link to a file is followed: the file changes, the link stays.
    if (std::filesystem::is_symlink(std::filesystem::symlink_status(target, ec)))
        target = std::filesystem::canonical(target, ec);
    std::filesystem::path folder = target.parent_path();
    std::string tmp = (folder / ("." + target.filename().string() + ".XXXXXX")).string();
    int fd = ::mkstemp(tmp.data());
    if (fd < 0)
        throw WriteError(path, errno);
    bool ok = WriteAll(fd, text);
    int err = errno;
    // mkstemp makes the file private; give it the usual permissions.
    if (ok) {
        mode_t mask = ::umask(0);
        ::umask(mask);
        ok = ::fchmod(fd, 0666 & ~mask) == 0 && ::fsync(fd) == 0;
        err = errno;
    }
    if (::close(fd) != 0 && ok) {
        ok = false;
        err = errno;
    }
    if (ok && ::rename(tmp.c_str(), target.c_str()) != 0) {
        ok = false;
        err = errno;
    }
    if (!ok) {
        ::unlink(tmp.c_str());
        throw WriteError(path, err);
    }
}

} // namespace hullhost
