// The sound library of the root (Modules/Plugin/OrbiterSound.dll), loaded
// for a run with --sound before any vessel, so that the vessel modules find
// it among the loaded libraries. Without it they run silently.
#pragma once

#include <string>

namespace hullhost::sim {

class SoundPlugin {
  public:
    // Throws std::runtime_error when the library can't be loaded.
    explicit SoundPlugin(const std::string &root);
    ~SoundPlugin();
    SoundPlugin(const SoundPlugin &) = delete;
    SoundPlugin &operator=(const SoundPlugin &) = delete;

    // Writes the library's mix of what was played from 0 to `end` seconds.
    // Throws std::runtime_error when the library can't.
    void WriteSoundtrack(const std::string &path, double end) const;

  private:
    void *library_ = nullptr;
};

} // namespace hullhost::sim
