#include "presentation/sound_link.h"

#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <strings.h>

#include "SoundLibraryAPI.h"

namespace soundlink {

namespace {

constexpr int kLogLimit = 101;
constexpr const char *kLogFile = "OrbiterSound_Log.txt";
constexpr const char *kWaveRoot = "Sound\\_CustomVesselsSounds\\";
constexpr float kVersionWithoutExport = 3.5f;

struct Exports {
    LoadVesselWaveFunc load = nullptr;
    PlayVesselWaveFunc play = nullptr;
    PlayVesselWaveFunc playExclusive = nullptr;
    StopVesselWaveFunc stop = nullptr;
    IsPlayingVesselWaveFunc isPlaying = nullptr;
    IsPlayingRadioFunc isPlayingRadio = nullptr;
    SoundOptionFunc option = nullptr;
    SetFrequencyFunc setFrequency = nullptr;
    GetVesselSoundID3Func getId = nullptr;
    ReplaceStockSoundFunc replaceStock = nullptr;
    GetVersionFunc version = nullptr;
    LoadVesselWave3dFunc load3d = nullptr;
    Set3dWaveParametersFunc set3d = nullptr;
    IsSound3dFunc is3d = nullptr;
};

// The module-wide link: the library, its exports, the log count, the
// default directory and the composed name.
HMODULE library = nullptr;
Exports fn;
int logCount = 0;
bool defaultDirSet = false;
char defaultDir[MAX_PATH] = {};
char waveName[2 * MAX_PATH] = {};

template <class F> F Look(const char *name) { return reinterpret_cast<F>(GetProcAddress(library, name)); }

bool ValidId(int id) { return id >= 0 && id <= 59; }
bool ValidWave(int wave) { return wave >= 1 && wave <= 60; }

} // namespace

void SoundLog(const char *first, const char *second) {
    if (logCount >= kLogLimit)
        return;
    if (FILE *probe = std::fopen(kLogFile, "r"))
        std::fclose(probe);
    else if (FILE *fresh = std::fopen(kLogFile, "wt")) {
        std::fputs("Orbiter Sound Log Started\n*****************************\n\n", fresh);
        std::fclose(fresh);
    }
    FILE *log = std::fopen(kLogFile, "at");
    if (!log)
        return;
    std::fputs("--------------------------------------\n", log);
    for (const char *text : {first, second})
        if (text)
            std::fprintf(log, "%s\n", text);
    ++logCount;
    std::fclose(log);
}

int ConnectToSoundLibrary(OBJHANDLE vessel) {
    defaultDirSet = false;
    defaultDir[0] = '\0';
    waveName[0] = '\0';
    if (!vessel) {
        SoundLog("ERR01= Vessel->ConnectToOrbiterSoundDLL: A vessel passed a NULL handle to this function",
                 nullptr);
        return -1;
    }
    library = GetModuleHandleA("OrbiterSound.dll");
    if (!library) {
        fn = Exports{};
        SoundLog("ERR01= Vessel->ConnectToOrbiterSoundDLL: Unable to connect to OrbiterSound - not "
                 "installed or activated",
                 nullptr);
        return -1;
    }
    fn.load = Look<LoadVesselWaveFunc>("LoadVesselWaveOBSound3");
    fn.play = Look<PlayVesselWaveFunc>("PlayVesselWaveOBSound3");
    fn.playExclusive = Look<PlayVesselWaveFunc>("PlayVesselExclusiveWaveOBSound3");
    fn.stop = Look<StopVesselWaveFunc>("StopVesselWave3");
    fn.isPlaying = Look<IsPlayingVesselWaveFunc>("IsPlayingVesselWave3");
    fn.isPlayingRadio = Look<IsPlayingRadioFunc>("IsPlayingRadioVesselWave");
    fn.option = Look<SoundOptionFunc>("SoundOption3");
    fn.setFrequency = Look<SetFrequencyFunc>("SetFrequency");
    fn.getId = Look<GetVesselSoundID3Func>("GetVesselSoundID3");
    fn.replaceStock = Look<ReplaceStockSoundFunc>("ReplaceStockOBSound3");
    fn.version = Look<GetVersionFunc>("GetVersionOBSound3");
    if (!fn.load || !fn.play || !fn.stop || !fn.isPlaying || !fn.isPlayingRadio || !fn.playExclusive ||
        !fn.option || !fn.setFrequency || !fn.replaceStock) {
        SoundLog("ERR02= ConnectToOrbiterSoundDLL (4.0 SDK): Unable to find routines. Missing or outdated "
                 "OrbiterSound (<3.0?)",
                 nullptr);
        return -1;
    }
    fn.load3d = Look<LoadVesselWave3dFunc>("LoadVesselWave3dOBSound4");
    fn.set3d = Look<Set3dWaveParametersFunc>("Set3dWaveParametersOBSound4");
    fn.is3d = Look<IsSound3dFunc>("IsOrbiterSound3dOBSound4");
    if (!fn.load3d || !fn.set3d || !fn.is3d)
        SoundLog("ERR04= Error finding OrbiterSound 4.0 (3d) function. Reverting to OrbiterSound 3.5 "
                 "function (2d).",
                 nullptr);
    if (!fn.getId) {
        SoundLog("ERR03= unable to connect to GetMyID, Older OrbiterSound.dll ?", nullptr);
        return -1;
    }
    return fn.getId(vessel);
}

int SoundOption(int id, int option, int value) {
    if (!fn.option || !ValidId(id) || option < 1 || option > 24)
        return 0;
    return fn.option(id, option, value);
}

int LoadWave(int id, int wave, const char *file, int mode) {
    if (!fn.load || !ValidId(id) || !ValidWave(wave))
        return 0;
    return fn.load(id, wave, const_cast<char *>(ComposeWaveName(file)), mode);
}

int PlayWave(int id, int wave, int loop, int volume, int frequency) {
    if (!fn.play || !ValidId(id) || !ValidWave(wave))
        return 0;
    return fn.play(id, wave, loop, volume, frequency);
}

int StopWave(int id, int wave) {
    if (!fn.stop || !ValidId(id) || !ValidWave(wave))
        return 0;
    return fn.stop(id, wave);
}

int SetMyDefaultWaveDirectory(const char *directory) {
    if (!directory) {
        SoundLog("SetMyDefaultWaveDirectory - No string", nullptr);
        return 0;
    }
    const std::size_t rootLength = std::strlen(kWaveRoot);
    if (strncasecmp(directory, kWaveRoot, rootLength) != 0) {
        SoundLog("SetMyDefaultWaveDirectory - Missing 'Sound\\_CustomVesselsSounds\\' at start", nullptr);
        return 0;
    }
    std::snprintf(defaultDir, sizeof defaultDir, "%s", directory);
    const std::size_t length = std::strlen(defaultDir);
    if (defaultDir[length - 1] != '\\' && length + 1 < sizeof defaultDir) {
        defaultDir[length] = '\\';
        defaultDir[length + 1] = '\0';
    }
    defaultDirSet = true;
    return 1;
}

const char *ComposeWaveName(const char *name) {
    if (!name)
        waveName[0] = '\0';
    else if (defaultDirSet)
        std::snprintf(waveName, sizeof waveName, "%s%s", defaultDir, name);
    else
        std::snprintf(waveName, sizeof waveName, "%s", name);
    return waveName;
}

float GetSoundLibraryVersion() {
    if (fn.version)
        return fn.version();
    FILE *config = std::fopen("Sound/cfg/OrbiterSound3.cfg", "rb");
    if (!config)
        return 0.0f;
    std::fclose(config);
    return kVersionWithoutExport;
}

} // namespace soundlink
