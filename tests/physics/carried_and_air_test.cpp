// A carried vessel riding on its parent and leaving it; a vessel falling
// through the air to its terminal velocity.
#include <gtest/gtest.h>

#include <cmath>
#include <memory>

#include "flight_test_support.h"
#include "physics/atmosphere.h"
#include "physics/flight_model.h"
#include "physics/rotation.h"

using namespace hullhost;
using namespace hullhost::testing;

TEST(Carried, ChildRidesOnTheAttachmentPointAndLeavesAlongIt) {
    World w(".");
    w.bodies.clear();
    Vessel &parent = AddVessel(w, "carrier", 1000.0, {0, 0, 0}, {0, 0, 0});
    Vessel &child = AddVessel(w, "payload", 100.0, {1e9, 0, 0}, {0, 0, 0});
    parent.attachments.push_back(std::make_unique<Attachment>());
    child.attachments.push_back(std::make_unique<Attachment>());
    Attachment &hold = *parent.attachments.back();
    Attachment &own = *child.attachments.back();
    hold = {&parent, false, {0, 0, 10}, {0, 0, 1}, {0, 1, 0}, "P", false, &child, &own};
    own = {&child, true, {0, 0, -1}, {0, 0, -1}, {0, 1, 0}, "C", false, &parent, &hold};
    child.parent = &parent;
    parent.omega = {0.0, 0.1, 0.0}; // turning the nose toward -x
    parent.vel = {5, 0, 0};

    w.Frame(1.0);
    // The child faces the parent's way, one metre beyond its point.
    const VECTOR3 childNose = physics::Column(child.rot, 2), parentNose = physics::Column(parent.rot, 2);
    EXPECT_LT(dist(childNose, parentNose), 1e-12);
    EXPECT_LT(dist(child.pos, parent.pos + parentNose * 11.0), 1e-9);
    // It moves with the point: the parent's velocity and the turn's sweep.
    const VECTOR3 sweep = mul(parent.rot, crossp(VECTOR3{0, 0, 11}, parent.omega));
    EXPECT_LT(dist(child.vel, parent.vel + sweep), 1e-9);
    EXPECT_NEAR(length(sweep), 1.1, 1e-9);

    child.parent = nullptr;
    hold.attached = own.attached = nullptr;
    physics::Detach(child, parent, hold.dir, 2.0);
    EXPECT_LT(dist(child.vel, parent.vel + sweep + parentNose * 2.0), 1e-9);
}

TEST(Air, FallingVesselReachesTerminalVelocity) {
    World w(".");
    Body &earth = *w.Earth();
    Vessel &v = w.AddBareVessel("probe");
    v.emptyMass = 100.0;
    v.crossSections = {1.0, 1.0, 1.0};
    v.cw[0] = v.cw[1] = v.cw[2] = v.cw[3] = 1.0;
    const VECTOR3 up = physics::Column(earth.equatorial, 1); // above the north pole: no wind from the spin
    v.pos = earth.pos + up * (earth.radius + 3000.0);
    v.vel = earth.vel;
    // Belly down: it falls along its -y axis and shows the air one face.
    v.rot = physics::RotationBetweenBases({0, 1, 0}, {0, 0, 1}, up, physics::Column(earth.equatorial, 0));
    RunFor(w, 25.0);
    const double altitude = length(v.pos - earth.pos) - earth.radius;
    const double g = earth.gm / std::pow(earth.radius + altitude, 2);
    const double rho = physics::StandardAtmosphere(altitude).density;
    // Drag balances weight: m g = rho v^2 cw A / 2.
    const double terminal = std::sqrt(2.0 * v.emptyMass * g / (rho * 1.0 * 1.0));
    EXPECT_NEAR(length(v.vel - earth.vel) / terminal, 1.0, 0.01);
    EXPECT_LT(dotp(v.vel - earth.vel, up), 0.0);
}
