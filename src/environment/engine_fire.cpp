// An engine fire: it grows to full in FireGrowTime while the engine fades,
// burns at full for FireBurnTime, and ends in a crash.
#include "frame/hullkit.h"
#include "frame/random_draw.h"

void HULLKIT::StartEngineFire() {
    if (FireLevel > 0.0)
        return;
    FireGrowTime = RandomDraw(10.0, 10.0);
    FireBurnTime = RandomDraw(5.0, 5.0);
    EngineFadeTime = RandomDraw(10.0, 10.0);
    FireLevel = 0.1;
    AddFireStreams();
    ReportEvent(5, "Engine fire detected!", 0.0, 0.0, nullptr);
    ShowMessage("Engine fire detected!");
    AddUpdater(&HULLKIT::H_FAIL_FIRE);
}

// A vessel without the two particle records burns unseen.
void HULLKIT::AddFireStreams() {
    for (const char *name : {"FireSmoke", "FireFlame"})
        if (PARTICLE_REC *rec = ParticleTable.Find(name))
            AddParticleStream(&rec->spec, FirePos, FireDir, &FireLevel);
}

void HULLKIT::H_FAIL_FIRE() {
    const double dt = oapiGetSimStep();
    const double level = GetThrusterGroupLevel(THGROUP_MAIN);
    if (level > 0.1)
        SetThrusterGroupLevel(THGROUP_MAIN, level - dt * 0.9 / EngineFadeTime);
    if (FireLevel < 1.0) {
        FireLevel += dt * 0.9 / FireGrowTime;
        return;
    }
    RaiseAlert();
    FireBurnTime -= dt;
    if (FireBurnTime < 0.0)
        OnCrash(false);
}
