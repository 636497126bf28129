// The vessel's sounds: its link, the common wave table of a fleet, and every
// sound heard from it through the link of the vessel that has the focus.
#include <cmath>
#include <initializer_list>

#include "frame/hullkit.h"
#include "presentation/sound_link.h"

namespace {

constexpr int kPlayOnce = 0, kPlayLoop = 1, kStop = 3;
constexpr int kFullVolume = 255;
// Beyond this a sound isn't heard at all; the volume falls to 0 at 3000 m
// and is passed on negative in between.
constexpr double kHearingLimit = 3300.0, kSilentDistance = 3000.0;

// The table becomes a copy of `source`, record by record in its order.
void CopySoundTable(HkResources<SOUND_REC> &table, const HkResources<SOUND_REC> &source) {
    table.names = source.names;
    table.levels = source.levels;
    table.tokensByName = source.tokensByName;
    table.indicesByName.clear();
    table.records = source.records;
}

// Adds the records of `source` to `table`; a name already there is replaced
// in its place.
void AddSoundRecords(HkResources<SOUND_REC> &table, const HkResources<SOUND_REC> &source) {
    for (std::size_t i = 0; i < source.names.size(); ++i) {
        const std::string &name = source.names[i];
        auto record = source.records.find(name);
        if (record == source.records.end())
            continue;
        if (!table.tokensByName.contains(name)) {
            table.names.push_back(name);
            table.levels.push_back(i < source.levels.size() ? source.levels[i] : 0);
        }
        auto tokens = source.tokensByName.find(name);
        table.tokensByName[name] =
            tokens == source.tokensByName.end() ? std::vector<std::string>{name} : tokens->second;
        table.indicesByName.erase(name);
        table.records[name] = record->second;
    }
}

} // namespace

void HULLKIT::ConnectVesselSound() {
    SoundId = soundlink::ConnectToSoundLibrary(GetHandle());
    for (int option : {5, 7, 12, 10, 15})
        soundlink::SoundOption(SoundId, option, 1);
    for (int option : {1, 3, 4, 6, 8, 9, 11, 13, 14, 16, 17})
        soundlink::SoundOption(SoundId, option, 0);
    // A controller gathers the sounds of the fleet; the vessel loads the
    // common table when it is asked to.
    if (ControllerHullkit) {
        if (ControllerHullkit != this)
            AddSoundRecords(ControllerHullkit->SoundTable, SoundTable);
    } else {
        LoadSounds();
    }
}

void HULLKIT::LoadSounds() {
    // With a controller every vessel holds the same table, so that a wave
    // number means the same sound through any vessel's link.
    if (ControllerHullkit && ControllerHullkit != this)
        CopySoundTable(SoundTable, ControllerHullkit->SoundTable);
    for (int32_t i = 0; i < SoundTable.Count(); ++i)
        if (const SOUND_REC *sound = SoundTable.At(i))
            soundlink::LoadWave(SoundId, i, sound->file.c_str(), sound->mode);
    RegisterSoundFiles();
    for (int32_t i = 0; i < AnimCtrlTable.Count(); ++i)
        if (ANIM_CTRL_REC *c = AnimCtrlTable.At(i)) {
            c->sndMoveIndex = SoundTable.IndexOf(c->sndMove);
            c->sndMinusStopIndex = SoundTable.IndexOf(c->sndMinusStop);
            c->sndPlusStopIndex = SoundTable.IndexOf(c->sndPlusStop);
        }
}

void HULLKIT::RegisterSoundFiles() {
    SndThud = SoundTable.IndexOf("Thud");
    SndEngine = SoundTable.IndexOf("Engine");
    SndAlarm = SoundTable.IndexOf("Alarm");
    SndGas = SoundTable.IndexOf("Gas");
    SndPyro = SoundTable.IndexOf("Pyro");
    SndMotor = SoundTable.IndexOf("Motor");
    SndClang = SoundTable.IndexOf("Clang");
    SndRadio = SoundTable.IndexOf("Radio");
}

// Every sound goes through the link of the focus vessel, quieter with the
// distance to it.
void HULLKIT::PlayVesselSound(int wave, int mode, int volume) {
    OBJHANDLE focus = oapiGetFocusObject();
    if (!focus || !oapiIsVessel(focus))
        return;
    VESSEL *listener = oapiGetVesselInterface(focus);
    if (!IsHullkit(listener))
        return;
    VECTOR3 offset;
    GetRelativePos(focus, offset);
    const double d = length(offset);
    if (!(d <= kHearingLimit)) // also a distance that isn't a number
        return;
    volume = static_cast<int>(std::trunc(volume * (1.0 - d / kSilentDistance)));
    const int id = static_cast<HULLKIT *>(listener)->SoundId;
    if (mode == kStop)
        soundlink::StopWave(id, wave);
    else
        soundlink::PlayWave(id, wave, mode, volume, 0);
}

void HULLKIT::H_PYRO_SOUND() { PlayVesselSound(SndPyro, kPlayOnce, kFullVolume); }

// Loops while the main engine burns, louder with its level; stops on the
// first step after it went out.
void HULLKIT::DriveEngineSound(double level) {
    if (level > 0.0)
        PlayVesselSound(SndEngine, kPlayLoop, static_cast<int>(std::trunc(255.0 * level * 1.6)));
    else if (mainRunning)
        PlayVesselSound(SndEngine, kStop, kFullVolume);
}
