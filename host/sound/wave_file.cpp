#include "wave_file.h"

#include <cstring>
#include <fstream>

namespace hullsound {

namespace {

uint32_t Le32(const unsigned char *p) {
    return p[0] | p[1] << 8 | p[2] << 16 | static_cast<uint32_t>(p[3]) << 24;
}
uint16_t Le16(const unsigned char *p) { return static_cast<uint16_t>(p[0] | p[1] << 8); }

} // namespace

std::optional<WaveFormat> ReadWaveFormat(const std::string &path) {
    std::ifstream in(path, std::ios::binary);
    unsigned char riff[12];
    if (!in.read(reinterpret_cast<char *>(riff), sizeof riff) || std::memcmp(riff, "RIFF", 4) != 0 ||
        std::memcmp(riff + 8, "WAVE", 4) != 0)
        return std::nullopt;
    WaveFormat format;
    bool haveFormat = false;
    // Chunks follow each other, each padded to an even length.
    for (unsigned char head[8]; in.read(reinterpret_cast<char *>(head), sizeof head);) {
        const uint32_t size = Le32(head + 4);
        if (std::memcmp(head, "fmt ", 4) == 0 && size >= 16) {
            unsigned char fmt[16];
            if (!in.read(reinterpret_cast<char *>(fmt), sizeof fmt) || Le16(fmt) != 1)
                return std::nullopt;
            format.channels = Le16(fmt + 2);
            format.sampleRate = Le32(fmt + 4);
            format.bitsPerSample = Le16(fmt + 14);
            haveFormat = true;
            in.seekg(static_cast<std::streamoff>(size - 16 + (size & 1)), std::ios::cur);
        } else if (std::memcmp(head, "data", 4) == 0) {
            format.dataBytes = size;
            format.dataOffset = static_cast<uint64_t>(in.tellg());
            if (!haveFormat || format.channels == 0 || format.sampleRate == 0)
                return std::nullopt;
            return format;
        } else {
            in.seekg(static_cast<std::streamoff>(size + (size & 1)), std::ios::cur);
        }
    }
    return std::nullopt;
}

} // namespace hullsound
