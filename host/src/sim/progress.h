// A one-line progress display of a run on a terminal, redrawn in place. It
// shows nothing when its stream is not a terminal.
#pragma once

#include <chrono>
#include <cstdio>

namespace hullhost::sim {

class Progress {
  public:
    // `total` is the simulation time that the run will reach.
    Progress(std::FILE *out, double total);
    ~Progress();
    Progress(const Progress &) = delete;
    Progress &operator=(const Progress &) = delete;

    // Redraws the line at most a few times a second.
    void Update(double simt);
    // Erases the line.
    void Finish();

  private:
    std::FILE *out_;
    double total_;
    bool active_;
    bool shown_ = false;
    std::chrono::steady_clock::time_point start_, last_;
};

} // namespace hullhost::sim
