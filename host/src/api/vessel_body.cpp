// A vessel's body set-up: mass, shape, drag, touchdown points, docks, camera.
// Every setter takes effect at once.
#include <algorithm>

#include "VesselAPI.h"
#include "core/handle_lookup.h"
#include "core/vessel.h"

double VESSEL::GetSize() const { return vessel->size; }
void VESSEL::SetSize(double size) const { vessel->size = size; }
double VESSEL::GetEmptyMass() const { return vessel->emptyMass; }
void VESSEL::SetEmptyMass(double m) const { vessel->emptyMass = std::max(m, 0.0); }
double VESSEL::GetMass() const { return vessel->Mass(); }
void VESSEL::GetPMI(VECTOR3 &pmi) const { pmi = vessel->pmi; }
void VESSEL::SetPMI(const VECTOR3 &pmi) const { vessel->pmi = pmi; }
void VESSEL::GetCrossSections(VECTOR3 &cs) const { cs = vessel->crossSections; }
void VESSEL::SetCrossSections(const VECTOR3 &cs) const { vessel->crossSections = cs; }
void VESSEL::GetRotDrag(VECTOR3 &rd) const { rd = vessel->rotDrag; }
void VESSEL::SetRotDrag(const VECTOR3 &rd) const { vessel->rotDrag = rd; }

void VESSEL::SetCW(double cw_z_pos, double cw_z_neg, double cw_x, double cw_y) const {
    vessel->cw[0] = cw_z_pos;
    vessel->cw[1] = cw_z_neg;
    vessel->cw[2] = cw_x;
    vessel->cw[3] = cw_y;
}

void VESSEL::SetPitchMomentScale(double scale) const { vessel->pitchMomentScale = scale; }
void VESSEL::SetBankMomentScale(double scale) const { vessel->bankMomentScale = scale; }

void VESSEL::SetSurfaceFrictionCoeff(double mu_lng, double mu_lat) const {
    vessel->frictionLng = mu_lng;
    vessel->frictionLat = mu_lat;
}

// The three-point form: stiffness, damping and friction left at 0, so that
// the flight model derives them from the vessel's mass as it is when it lands.
void VESSEL::SetTouchdownPoints(const VECTOR3 &pt1, const VECTOR3 &pt2, const VECTOR3 &pt3) const {
    vessel->touchdown.clear();
    for (const VECTOR3 &p : {pt1, pt2, pt3})
        vessel->touchdown.push_back({p, 0.0, 0.0, 0.0, 0.0});
}

void VESSEL::SetTouchdownPoints(const TOUCHDOWNVTX *tdvtx, DWORD ntdvtx) const {
    if (!tdvtx || ntdvtx < 3)
        return;
    vessel->touchdown.assign(tdvtx, tdvtx + ntdvtx);
}

void VESSEL::GetTouchdownPoints(VECTOR3 &pt1, VECTOR3 &pt2, VECTOR3 &pt3) const {
    VECTOR3 zero{0, 0, 0};
    auto &td = vessel->touchdown;
    pt1 = td.size() > 0 ? td[0].pos : zero;
    pt2 = td.size() > 1 ? td[1].pos : zero;
    pt3 = td.size() > 2 ? td[2].pos : zero;
}

DWORD VESSEL::GetTouchdownPointCount() const { return static_cast<DWORD>(vessel->touchdown.size()); }

bool VESSEL::GetTouchdownPoint(TOUCHDOWNVTX &tdvtx, DWORD idx) const {
    if (idx >= vessel->touchdown.size())
        return false;
    tdvtx = vessel->touchdown[idx];
    return true;
}

void VESSEL::SetVisibilityLimit(double vislimit, double spotlimit) const {
    vessel->visLimit = vislimit;
    vessel->spotLimit = spotlimit;
}

void VESSEL::SetEnableFocus(bool enable) const { vessel->focusEnabled = enable; }
bool VESSEL::GetEnableFocus() const { return vessel->focusEnabled; }

// Moves the centre of gravity: the vessel's frame shifts so that its origin
// stays at the centre of gravity, and everything set up in it moves along.
void VESSEL::ShiftCG(const VECTOR3 &shift) {
    auto &v = *vessel;
    v.cgShift += shift;
    for (auto &t : v.thrusters)
        t->pos -= shift;
    for (auto &m : v.meshes)
        m.offset -= shift;
    for (auto &a : v.attachments)
        a->pos -= shift;
    for (auto &d : v.docks)
        d->pos -= shift;
    for (auto &td : v.touchdown)
        td.pos -= shift;
    v.camera.offset -= shift;
    v.pos += mul(v.rot, shift);
}

void VESSEL::SetReentryTexture(SURFHANDLE tex, double plimit, double lscale, double wscale) const {
    vessel->reentry = {tex, plimit, lscale, wscale};
}

void VESSEL::SetCameraOffset(const VECTOR3 &co) const { vessel->camera.offset = co; }
void VESSEL::GetCameraOffset(VECTOR3 &co) const { co = vessel->camera.offset; }
void VESSEL::SetCameraDefaultDirection(const VECTOR3 &cd) const { SetCameraDefaultDirection(cd, 0.0); }

void VESSEL::SetCameraDefaultDirection(const VECTOR3 &cd, double tilt) const {
    vessel->camera.direction = unit(cd);
    vessel->camera.tilt = tilt;
}

void VESSEL::GetCameraDefaultDirection(VECTOR3 &cd) const { cd = vessel->camera.direction; }

void VESSEL::SetCameraRotationRange(double left, double right, double up, double down) const {
    auto &c = vessel->camera;
    c.rangeLeft = left;
    c.rangeRight = right;
    c.rangeUp = up;
    c.rangeDown = down;
}

DOCKHANDLE VESSEL::CreateDock(const VECTOR3 &pos, const VECTOR3 &dir, const VECTOR3 &rot) const {
    vessel->docks.push_back(std::make_unique<hullhost::Dock>(hullhost::Dock{pos, dir, rot}));
    return vessel->docks.back()->Handle();
}

UINT VESSEL::DockCount() const { return static_cast<UINT>(vessel->docks.size()); }

AIRFOILHANDLE VESSEL::CreateAirfoil3(AIRFOIL_ORIENTATION align, const VECTOR3 &ref, AirfoilCoeffFuncEx cf,
                                     void *context, double c, double S, double A) const {
    auto foil = std::make_unique<hullhost::Airfoil>();
    *foil = {align, ref, cf, context, c, S, A};
    vessel->airfoils.push_back(std::move(foil));
    return vessel->airfoils.back()->Handle();
}

bool VESSEL::DelAirfoil(AIRFOILHANDLE h) const { return hullhost::EraseByHandle(vessel->airfoils, h); }

void VESSEL::ClearAirfoilDefinitions() const { vessel->airfoils.clear(); }
