// Floodlight sets: each a host spot light and a grid of lamp sprites, dark
// by day and lit at night; the same check switches the beacons.
#include <algorithm>
#include <cmath>

#include "frame/hullkit.h"
#include "frame/random_draw.h"

namespace {

constexpr double kDeg = 0.017453292519943295, kRad = 57.29577951308232;
constexpr double kHalfPi = 1.5707963267948966;
// The lamps burn on the night side; the beacons come on 10 degrees earlier.
constexpr double kLampLimit = 90.0, kBeaconLimit = 100.0;
// The host lights stay on only for a viewer this close [m].
constexpr double kLightRange = 5000.0;
// The most lamps of one set, so that no configuration floods the host with
// sprites; a grid beyond it loses rows (and columns).
constexpr int32_t kMaxLamps = 10000;

VECTOR3 Heading(double azimuth, double elevation) {
    return {std::sin(azimuth) * std::cos(elevation), std::sin(elevation),
            std::cos(azimuth) * std::cos(elevation)};
}

} // namespace

void HULLKIT::BuildSpotlights() {
    // One fog draw for the run: beams show in it for every set.
    const double f = std::trunc(RandomDraw(0.0, 10.0));
    const bool beams = SpotlightFogProbability * 10.0 > f;
    const THRUSTER_REC *lamp = ThrusterTable.Find("Spotlight0");
    THRUSTER_HANDLE lamps = lamp ? lamp->handle : nullptr;
    const TEXTURE_REC *face = TextureTable.Find("txLightFace");
    const TEXTURE_REC *beam = TextureTable.Find("txLightBeam");
    for (int32_t i = 0; i < SpotlightSetTable.Count(); ++i) {
        SPOTLIGHTSET_REC *set = SpotlightSetTable.At(i);
        if (!set)
            continue;
        const double elev = set->elev * kDeg, azm = set->azm * kDeg, dAzm = set->dAzm * kDeg,
                     dElev = set->dElev * kDeg, lightAzm = set->lightAzmAngle * kDeg;
        set->Emitter = AddSpotLight(set->pos, Heading(azm + lightAzm, elev), 500.0, 0.01, 0.0, 0.00006,
                                    0.6108652381980153, 1.2217304763960306, {0.95f, 0.95f, 0.95f, 0.0f},
                                    {0.3f, 0.3f, 0.3f, 0.0f}, {0.0f, 0.0f, 0.0f, 0.0f});
        if (set->Emitter)
            set->Emitter->Activate(false);
        const VECTOR3 columnStep{std::sin(azm + kHalfPi) * set->dHorStep, 0.0,
                                 std::cos(azm + kHalfPi) * set->dHorStep};
        const int32_t cols = std::clamp(set->cols, 0, kMaxLamps);
        const int32_t rows = std::clamp(set->rows, 0, cols > 0 ? kMaxLamps / cols : 0);
        double c = azm + lightAzm - cols * dAzm / 2.0;
        VECTOR3 p = set->pos;
        VECTOR3 d = Heading(c, elev);
        for (int32_t col = 0; col < cols; ++col) {
            for (int32_t row = 0; row < rows; ++row) {
                AddExhaust(lamps, 0.1, set->faceWidth, p, d, face ? face->surface : nullptr);
                if (beams)
                    AddExhaust(lamps, set->len, set->wid, p, d, beam ? beam->surface : nullptr);
                p.y += set->dVertStep;
                d.y = std::sin(elev + (row + 1) * dElev);
            }
            p.y = set->pos.y;
            p.x += columnStep.x;
            p.z += columnStep.z;
            c += dAzm;
            d = Heading(c, elev);
        }
    }
}

void HULLKIT::ActivateSpotlights(bool on) {
    SpotlightsLit = on;
    for (int32_t i = 0; i < SpotlightSetTable.Count(); ++i)
        if (SPOTLIGHTSET_REC *set = SpotlightSetTable.At(i); set && set->Emitter)
            set->Emitter->Activate(on);
}

// Day or night by the angle between the vessel's place on the Earth and its
// place in the global frame, whose origin is the Sun: small on the night side.
void HULLKIT::H_CHK_SPOTLIGHTS() {
    VECTOR3 r, g;
    GetRelativePos(EarthHandle, r);
    GetGlobalPos(g);
    const double norm = length(r) * length(g);
    const double angle = norm > 0.0 ? std::acos(std::clamp(dotp(r, g) / norm, -1.0, 1.0)) * kRad : 180.0;
    const THRUSTERGROUP_REC *group = ThrusterGroupTable.Find("Spotlights");
    if (group && group->handle) {
        const double level = GetThrusterGroupLevel(group->handle);
        if (std::abs(angle) < kLampLimit && level == 0.0) {
            SetThrusterGroupLevel(group->handle, 1.0);
            ActivateSpotlights(true);
            AddSecondEvent(&HULLKIT::H_CHK_SPOTLT_DIST);
        } else if (std::abs(angle) >= kLampLimit && level != 0.0) {
            SetThrusterGroupLevel(group->handle, 0.0);
            ActivateSpotlights(false);
            RemoveSecondEvent(&HULLKIT::H_CHK_SPOTLT_DIST);
        }
    }
    for (int32_t i = 0; i < BeaconTable.Count(); ++i)
        if (BEACON_REC *beacon = BeaconTable.At(i))
            beacon->spec.active = std::abs(angle) < kBeaconLimit;
}

// The host lights follow the viewer's distance; the sprites stay lit.
void HULLKIT::H_CHK_SPOTLT_DIST() {
    OBJHANDLE focus = oapiGetFocusObject();
    if (!focus)
        return;
    VECTOR3 offset;
    GetRelativePos(focus, offset);
    const double d = length(offset);
    if (d > kLightRange && SpotlightsLit)
        ActivateSpotlights(false);
    else if (d < kLightRange && !SpotlightsLit)
        ActivateSpotlights(true);
}
