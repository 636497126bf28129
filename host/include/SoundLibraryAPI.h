// The exports of the host's sound library (Modules/Plugin/OrbiterSound.dll),
// as the vessel modules look them up by name at run time. The library is
// never linked: a module that doesn't find it runs silently.
#pragma once

#include "OrbiterAPI.h"

extern "C" {
// A vessel's link number, 0 and up; the same number for the same handle.
typedef int (*GetVesselSoundID3Func)(OBJHANDLE vessel);
// Loads a wave file (a path in the host's form, relative to the root) as
// wave `wave` of link `id`; 1 when loaded, 0 otherwise.
typedef int (*LoadVesselWaveFunc)(int id, int wave, char *file, int mode);
// Plays a loaded wave: `loop` 0 once, 1 in a loop; `volume` to 255.
typedef int (*PlayVesselWaveFunc)(int id, int wave, int loop, int volume, int frequency);
typedef int (*StopVesselWaveFunc)(int id, int wave);
typedef int (*IsPlayingVesselWaveFunc)(int id, int wave);
typedef int (*IsPlayingRadioFunc)(int id);
typedef int (*SoundOptionFunc)(int id, int option, int value);
typedef int (*SetFrequencyFunc)(int id, int wave, int frequency);
typedef int (*ReplaceStockSoundFunc)(int id, char *file, int stockWave);
typedef float (*GetVersionFunc)();
typedef int (*LoadVesselWave3dFunc)(int id, int wave, char *file, int mode, int type3d);
typedef int (*Set3dWaveParametersFunc)(int id, int wave, float minDistance, float maxDistance);
typedef int (*IsSound3dFunc)();
}
