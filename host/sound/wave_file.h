// The header of a RIFF WAVE file: what the sound library needs to know that
// a file is a wave it can play.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace hullsound {

struct WaveFormat {
    uint16_t channels = 0;
    uint32_t sampleRate = 0;
    uint16_t bitsPerSample = 0;
    uint32_t dataBytes = 0;  // length of the sample data
    uint64_t dataOffset = 0; // where it starts in the file
};

// The format of a PCM wave file; none when the file can't be read or isn't one.
std::optional<WaveFormat> ReadWaveFormat(const std::string &path);

} // namespace hullsound
