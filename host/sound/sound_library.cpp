// The host's sound library, loaded by hullsim --sound under the name the
// vessel modules look for (OrbiterSound.dll). It gives each vessel a link
// id, loads the wave files the vessels name (paths relative to the root,
// the host's working directory), and tells the world's listener of every
// load, play and stop. Nothing is heard, the run being headless, but what
// was played can be mixed into a soundtrack of the run.
//
// Test builds leave out groups of exports (HULLSOUND_LACKS_REQUIRED,
// HULLSOUND_LACKS_3D, HULLSOUND_LACKS_ID) to stand for older libraries.
#include <array>
#include <string>
#include <vector>

#include "SoundLibraryAPI.h"
#include "core/world.h"
#include "soundtrack.h"

#define HULLSOUND_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

constexpr int kWaves = 61; // wave numbers 1 to 60; 0 is never used
constexpr float kVersion = 4.0f;

struct Link {
    OBJHANDLE vessel = nullptr;
    std::array<std::string, kWaves> files; // as loaded; empty: none
    std::array<std::shared_ptr<const hullsound::Clip>, kWaves> clips;
};

std::vector<Link> links;
hullsound::Soundtrack soundtrack;

hullhost::World *World() { return hullhost::World::CurrentOrNull(); }

// A wave of a link, as the soundtrack tells its voices apart.
long Key(int id, int wave) { return static_cast<long>(id) * kWaves + wave; }
double Now() { return World() ? World()->simt : 0.0; }

Link *LinkOf(int id) {
    return id >= 0 && static_cast<std::size_t>(id) < links.size() ? &links[static_cast<std::size_t>(id)]
                                                                  : nullptr;
}

bool ValidWave(int wave) { return wave >= 1 && wave < kWaves; }

void Tell(const Link &link, int wave, const std::string &file, const char *op, int loop = -1,
          int volume = -1) {
    hullhost::World *world = World();
    if (!world || !world->events)
        return;
    hullhost::SoundEvent e;
    e.listener = world->VesselFromHandle(link.vessel);
    e.wave = wave;
    e.file = file.empty() ? nullptr : file.c_str();
    e.op = op;
    e.loop = loop;
    e.volume = volume;
    world->events->OnSound(e);
}

} // namespace

#ifndef HULLSOUND_LACKS_ID
// The same id for the same vessel; a vessel that has gone leaves its id to
// the next newcomer.
HULLSOUND_EXPORT int GetVesselSoundID3(OBJHANDLE vessel) {
    hullhost::World *world = World();
    for (std::size_t i = 0; i < links.size(); ++i)
        if (links[i].vessel == vessel)
            return static_cast<int>(i);
    for (std::size_t i = 0; i < links.size(); ++i)
        if (world && !world->IsVessel(links[i].vessel)) {
            links[i] = Link{vessel, {}, {}};
            return static_cast<int>(i);
        }
    links.push_back(Link{vessel, {}, {}});
    return static_cast<int>(links.size() - 1);
}
#endif

HULLSOUND_EXPORT int LoadVesselWaveOBSound3(int id, int wave, char *file, int) {
    Link *link = LinkOf(id);
    if (!link || !ValidWave(wave) || !file)
        return 0;
    hullhost::World *world = World();
    const std::string name = file;
    auto clip = world ? hullsound::ReadClip(world->LocalPath(name)) : nullptr;
    const bool found = clip != nullptr;
    if (!found && world)
        world->WriteLog("sound: no wave file '" + name + "'");
    link->files[static_cast<std::size_t>(wave)] = found ? name : std::string();
    link->clips[static_cast<std::size_t>(wave)] = std::move(clip);
    Tell(*link, wave, name, "load");
    return found ? 1 : 0;
}

HULLSOUND_EXPORT int PlayVesselWaveOBSound3(int id, int wave, int loop, int volume, int) {
    Link *link = LinkOf(id);
    if (!link || !ValidWave(wave))
        return 0;
    const std::string &file = link->files[static_cast<std::size_t>(wave)];
    Tell(*link, wave, file, "play", loop, volume);
    soundtrack.Play(Key(id, wave), link->clips[static_cast<std::size_t>(wave)], Now(), loop == 1, volume);
    return file.empty() ? 0 : 1;
}

HULLSOUND_EXPORT int PlayVesselExclusiveWaveOBSound3(int id, int wave, int loop, int volume, int frequency) {
    return PlayVesselWaveOBSound3(id, wave, loop, volume, frequency);
}

HULLSOUND_EXPORT int StopVesselWave3(int id, int wave) {
    Link *link = LinkOf(id);
    if (!link || !ValidWave(wave))
        return 0;
    Tell(*link, wave, link->files[static_cast<std::size_t>(wave)], "stop");
    soundtrack.Stop(Key(id, wave), Now());
    return 1;
}

// For the host: writes what was played from 0 to `end` seconds of
// simulation time as a wave file; 1 when written.
HULLSOUND_EXPORT int HullsimWriteSoundtrack(const char *path, double end) {
    return path && soundtrack.Write(path, end) ? 1 : 0;
}

HULLSOUND_EXPORT int IsPlayingVesselWave3(int, int) { return 0; }
HULLSOUND_EXPORT int IsPlayingRadioVesselWave(int) { return 0; }
HULLSOUND_EXPORT int SoundOption3(int id, int, int) { return LinkOf(id) ? 1 : 0; }
#ifndef HULLSOUND_LACKS_REQUIRED
HULLSOUND_EXPORT int SetFrequency(int id, int wave, int) { return LinkOf(id) && ValidWave(wave) ? 1 : 0; }
#endif
HULLSOUND_EXPORT int ReplaceStockOBSound3(int, char *, int) { return 0; }
HULLSOUND_EXPORT float GetVersionOBSound3() { return kVersion; }

#ifndef HULLSOUND_LACKS_3D
HULLSOUND_EXPORT int LoadVesselWave3dOBSound4(int id, int wave, char *file, int mode, int) {
    return LoadVesselWaveOBSound3(id, wave, file, mode);
}
HULLSOUND_EXPORT int Set3dWaveParametersOBSound4(int id, int wave, float, float) {
    return LinkOf(id) && ValidWave(wave) ? 1 : 0;
}
HULLSOUND_EXPORT int IsOrbiterSound3dOBSound4() { return 0; }
#endif
