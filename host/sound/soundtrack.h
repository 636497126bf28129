// The run's soundtrack: every wave played through the library, mixed at the
// simulation time it was played, as a mono 16-bit wave file at 8 kHz.
#pragma once

#include <memory>
#include <string>
#include <vector>

namespace hullsound {

// A wave's samples, -1 to 1, at its own rate.
struct Clip {
    std::vector<float> samples;
    double rate = 8000.0;
};

// Reads a PCM wave file (8 or 16 bits, mono or stereo, mixed down); null
// when it can't.
std::shared_ptr<const Clip> ReadClip(const std::string &path);

class Soundtrack {
  public:
    // The soundtrack is cut after this much simulation time [s].
    static constexpr double kLongest = 3600.0;
    static constexpr double kRate = 8000.0;

    // A play of `clip` at time `t` on wave `key`; a loop already playing on
    // the same key only takes the new volume (0 to 255).
    void Play(long key, std::shared_ptr<const Clip> clip, double t, bool loop, int volume);
    // Ends the loops of `key` at time `t`.
    void Stop(long key, double t);
    // Writes the mix from 0 to `end` [s]; false when the file can't be written.
    bool Write(const std::string &path, double end) const;

  private:
    struct Voice {
        long key;
        std::shared_ptr<const Clip> clip;
        double start, stop; // [s]; a loop plays until stop
        bool loop;
        float gain;
    };
    std::vector<Voice> voices_;
};

} // namespace hullsound
