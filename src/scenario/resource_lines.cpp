// The scenario's RESOURCE and RES_MODS lines: "<key> <section> <rest>", where
// the section word names a table by its section name.
#include <strings.h>

#include <cctype>

#include "frame/hullkit.h"

namespace {

struct SectionLine {
    std::string word;
    std::string rest;
};

// The first word behind the key, and the text that follows it behind one
// blank on each side of the word. False for a line of another key or without a word.
bool SplitSectionLine(const std::string &line, const char *key, SectionLine &out) {
    const std::size_t keyLength = std::char_traits<char>::length(key);
    if (line.size() < keyLength || strncasecmp(line.c_str(), key, keyLength) != 0)
        return false;
    std::size_t begin = keyLength;
    while (begin < line.size() && std::isspace(static_cast<unsigned char>(line[begin])))
        ++begin;
    std::size_t end = begin;
    while (end < line.size() && !std::isspace(static_cast<unsigned char>(line[end])))
        ++end;
    out.word = line.substr(begin, end - begin);
    if (out.word.empty())
        return false;
    const std::size_t restStart = keyLength + out.word.size() + 2;
    out.rest = restStart < line.size() ? line.substr(restStart) : std::string();
    return true;
}

} // namespace

void HULLKIT::ReadResourceLines() {
    SectionLine parts;
    for (std::size_t i = 0; i < PendingLines.size(); ++i) {
        if (!SplitSectionLine(PendingLines[i], "RESOURCE", parts))
            continue;
        bool matched = false;
        auto offer = [&](auto &table) {
            if (!matched && table.sectionName == parts.word) {
                matched = true;
                table.AddResourceLine(parts.rest, true);
            }
        };
        offer(BeaconTable);
        offer(MeshTable);
        offer(MaterialTable);
        offer(AnimTable);
        offer(AnimCtrlTable);
        offer(SoundTable);
        offer(TextureTable);
        offer(ParticleTable);
        offer(TankTable);
        offer(ThrusterTable);
        offer(ThrusterGroupTable);
        offer(SpotlightSetTable);
        offer(CameraTable);
        offer(WreckTable);
        offer(ChildTable);
        offer(SeparationTable);
    }
}

void HULLKIT::ReadResModsLines() {
    SectionLine parts;
    for (std::size_t i = 0; i < PendingLines.size(); ++i) {
        if (!SplitSectionLine(PendingLines[i], "RES_MODS", parts))
            continue;
        bool matched = false;
        auto offer = [&](auto &table) {
            if (!matched && table.sectionName == parts.word) {
                matched = true;
                table.modsText = parts.rest;
            }
        };
        offer(MeshTable);
        offer(AnimCtrlTable);
        offer(TankTable);
        offer(ThrusterGroupTable);
    }
}
