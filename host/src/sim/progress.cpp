#include "progress.h"

#include <unistd.h>

namespace hullhost::sim {

namespace {
// Runs shorter than this in real time show no progress at all.
constexpr auto kQuiet = std::chrono::milliseconds(500);
constexpr auto kInterval = std::chrono::milliseconds(200);
} // namespace

Progress::Progress(std::FILE *out, double total)
    : out_(out), total_(total), active_(out && total > 0 && ::isatty(::fileno(out))),
      start_(std::chrono::steady_clock::now()), last_(start_) {}

Progress::~Progress() { Finish(); }

void Progress::Update(double simt) {
    if (!active_)
        return;
    auto now = std::chrono::steady_clock::now();
    if (now - start_ < kQuiet || now - last_ < kInterval)
        return;
    last_ = now;
    double percent = 100.0 * simt / total_;
    std::fprintf(out_, "\rhullsim: simt %.1f of %.1f s (%.0f%%)\033[K", simt, total_, percent);
    std::fflush(out_);
    shown_ = true;
}

void Progress::Finish() {
    if (shown_) {
        std::fputs("\r\033[K", out_);
        std::fflush(out_);
        shown_ = false;
    }
    active_ = false;
}

} // namespace hullhost::sim
