#include "soundtrack.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <limits>

#include "wave_file.h"

namespace hullsound {

namespace {

void PutLe(std::string &out, uint32_t value, int bytes) {
    for (int i = 0; i < bytes; ++i)
        out += static_cast<char>(value >> (8 * i) & 0xFF);
}

} // namespace

std::shared_ptr<const Clip> ReadClip(const std::string &path) {
    const std::optional<WaveFormat> format = ReadWaveFormat(path);
    if (!format || (format->bitsPerSample != 8 && format->bitsPerSample != 16))
        return nullptr;
    std::ifstream in(path, std::ios::binary | std::ios::ate);
    // No more than the file holds, whatever its header says, and no clip
    // longer than a minute at 48 kHz in stereo.
    const auto size = static_cast<uint64_t>(std::max<std::streamoff>(in.tellg(), 0));
    const uint64_t held = size > format->dataOffset ? size - format->dataOffset : 0;
    in.seekg(static_cast<std::streamoff>(format->dataOffset));
    std::vector<unsigned char> data(std::min<uint64_t>({format->dataBytes, held, 60u * 48000u * 4u}));
    in.read(reinterpret_cast<char *>(data.data()), static_cast<std::streamsize>(data.size()));
    data.resize(static_cast<std::size_t>(in.gcount()));
    auto clip = std::make_shared<Clip>();
    clip->rate = format->sampleRate;
    const std::size_t width = format->bitsPerSample / 8u, frame = width * format->channels;
    for (std::size_t at = 0; at + frame <= data.size(); at += frame) {
        float sum = 0.0f;
        for (std::size_t c = 0; c < format->channels; ++c) {
            const unsigned char *p = &data[at + c * width];
            sum += width == 1 ? (p[0] - 128) / 128.0f : static_cast<int16_t>(p[0] | p[1] << 8) / 32768.0f;
        }
        clip->samples.push_back(sum / format->channels);
    }
    return clip;
}

void Soundtrack::Play(long key, std::shared_ptr<const Clip> clip, double t, bool loop, int volume) {
    if (!clip || clip->samples.empty() || t >= kLongest)
        return;
    const float gain = std::clamp(volume / 255.0f, 0.0f, 1.0f);
    constexpr double forever = std::numeric_limits<double>::infinity();
    for (Voice &v : voices_)
        if (loop && v.loop && v.key == key && v.stop == forever) {
            v.gain = gain;
            return;
        }
    voices_.push_back({key, std::move(clip), t, forever, loop, gain});
}

void Soundtrack::Stop(long key, double t) {
    for (Voice &v : voices_)
        if (v.key == key && v.loop && v.stop > t)
            v.stop = t;
}

bool Soundtrack::Write(const std::string &path, double end) const {
    const auto count = static_cast<std::size_t>(std::llround(std::clamp(end, 0.0, kLongest) * kRate));
    std::vector<float> mix(count, 0.0f);
    for (const Voice &v : voices_) {
        const std::size_t length = v.clip->samples.size();
        const std::size_t first = static_cast<std::size_t>(v.start * kRate);
        for (std::size_t i = first; i < count; ++i) {
            const double t = (i - first) / kRate;
            if (v.start + t >= v.stop)
                break;
            const std::size_t at = static_cast<std::size_t>(t * v.clip->rate);
            if (!v.loop && at >= length)
                break;
            mix[i] += v.gain * v.clip->samples[at % length];
        }
    }
    std::string out = "RIFF";
    PutLe(out, static_cast<uint32_t>(36 + 2 * count), 4);
    out += "WAVEfmt ";
    PutLe(out, 16, 4);
    PutLe(out, 1, 2); // PCM
    PutLe(out, 1, 2); // mono
    PutLe(out, static_cast<uint32_t>(kRate), 4);
    PutLe(out, static_cast<uint32_t>(kRate * 2), 4);
    PutLe(out, 2, 2);
    PutLe(out, 16, 2);
    out += "data";
    PutLe(out, static_cast<uint32_t>(2 * count), 4);
    for (float s : mix)
        PutLe(out,
              static_cast<uint16_t>(static_cast<int16_t>(std::lround(std::clamp(s, -1.0f, 1.0f) * 32767.0f))),
              2);
    std::ofstream file(path, std::ios::binary);
    return static_cast<bool>(file.write(out.data(), static_cast<std::streamsize>(out.size())));
}

} // namespace hullsound
