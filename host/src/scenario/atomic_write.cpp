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

} // namespace

void WriteFileAtomically(const std::string &path, std::string_view text) {
    std::filesystem::path target(path);
    if (target.filename().empty())
        throw std::runtime_error("can't write '" + path + "': not a file name");
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
    if (ok && ::rename(tmp.c_str(), path.c_str()) != 0) {
        ok = false;
        err = errno;
    }
    if (!ok) {
        ::unlink(tmp.c_str());
        throw WriteError(path, err);
    }
}

} // namespace hullhost
