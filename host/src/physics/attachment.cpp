// Carried vessels: a child hangs on its parent's attachment point with the two
// points' positions coinciding, their directions opposed and their rotation
// vectors aligned.
#include "core/vessel.h"
#include "physics/flight_model.h"
#include "physics/rotation.h"

namespace hullhost::physics {

void PlaceOnParent(Vessel &child) {
    const Attachment *own = child.ParentPoint();
    if (!child.parent || !own || !own->counterpart) {
        return;
    }
    const Attachment &hold = *own->counterpart;
    const Vessel &parent = *child.parent;
    const MATRIX3 childToParent = RotationBetweenBases(own->dir, own->rot, -hold.dir, hold.rot);
    const VECTOR3 offset = hold.pos - mul(childToParent, own->pos); // child's centre, parent frame
    child.rot = mul(parent.rot, childToParent);
    child.pos = parent.pos + mul(parent.rot, offset);
    child.vel = parent.vel + mul(parent.rot, crossp(offset, parent.omega));
    child.omega = tmul(childToParent, parent.omega);
    child.ref = parent.ref;
    child.landed = false;
}

void Detach(Vessel &child, const Vessel &parent, const VECTOR3 &dir, double vel) {
    child.vel += mul(parent.rot, unit(dir)) * vel;
    child.parent = nullptr;
    child.landed = false;
}

} // namespace hullhost::physics
