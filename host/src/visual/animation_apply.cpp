#include "animation_apply.h"

#include <algorithm>
#include <cmath>

#include "core/vessel.h"
#include "visual.h"

namespace hullhost {

namespace {

// Deeper parent chains than this are not followed; they can only come from
// a corrupted hierarchy.
constexpr int kMaxDepth = 64;

// p' = m p + t for positions, n' = normalise(nm n) for normals.
struct Motion {
    double m[3][3];
    double t[3];
    double nm[3][3];
};

void Diagonal(double out[3][3], double x, double y, double z) {
    const double d[3] = {x, y, z};
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            out[i][j] = i == j ? d[i] : 0.0;
}

// Moves the point `ref` back onto itself: t = ref - m ref.
void FixPoint(Motion &mo, const VECTOR3 &ref) {
    for (int i = 0; i < 3; ++i)
        mo.t[i] = ref[i] - (mo.m[i][0] * ref.x + mo.m[i][1] * ref.y + mo.m[i][2] * ref.z);
}

double Fraction(const AnimationComponent &c, double state) {
    if (c.state1 == c.state0)
        return state >= c.state0 ? 1.0 : 0.0;
    return std::clamp((state - c.state0) / (c.state1 - c.state0), 0.0, 1.0);
}

// Rotation by `angle` about the unit axis k through ref, in components
// v' = v cos + (k x v) sin + k (k.v)(1 - cos): about x, +y turns toward +z.
bool Rotation(const MGROUP_ROTATE &r, double angle, Motion &mo) {
    const double len = std::sqrt(r.axis.x * r.axis.x + r.axis.y * r.axis.y + r.axis.z * r.axis.z);
    if (len == 0.0 || angle == 0.0)
        return false;
    const double k[3] = {r.axis.x / len, r.axis.y / len, r.axis.z / len};
    const double c = std::cos(angle), s = std::sin(angle);
    const double cross[3][3] = {{0, -k[2], k[1]}, {k[2], 0, -k[0]}, {-k[1], k[0], 0}};
    for (int i = 0; i < 3; ++i)
        for (int j = 0; j < 3; ++j)
            mo.m[i][j] = (i == j ? c : 0.0) + s * cross[i][j] + (1.0 - c) * k[i] * k[j];
    std::copy(&mo.m[0][0], &mo.m[0][0] + 9, &mo.nm[0][0]);
    FixPoint(mo, r.ref);
    return true;
}

// The scale factor at fraction f relative to the one at f0, per axis.
double ScaleRatio(double k, double f, double f0) {
    const double at0 = 1.0 + (k - 1.0) * f0;
    const double at = 1.0 + (k - 1.0) * f;
    return at0 == 0.0 ? at : at / at0;
}

bool Scaling(const MGROUP_SCALE &sc, double f, double f0, Motion &mo) {
    const double s[3] = {ScaleRatio(sc.scale.x, f, f0), ScaleRatio(sc.scale.y, f, f0),
                         ScaleRatio(sc.scale.z, f, f0)};
    Diagonal(mo.m, s[0], s[1], s[2]);
    Diagonal(mo.nm, s[0] != 0.0 ? 1.0 / s[0] : 0.0, s[1] != 0.0 ? 1.0 / s[1] : 0.0,
             s[2] != 0.0 ? 1.0 / s[2] : 0.0);
    FixPoint(mo, sc.ref);
    return true;
}

// The motion of a component from its animation's default state to the
// current one; false if it doesn't move anything.
bool MotionOf(const AnimationComponent &c, Motion &mo) {
    if (!c.transform || !c.animation)
        return false;
    const double f = Fraction(c, c.animation->state);
    const double f0 = Fraction(c, c.animation->defaultState);
    if (f == f0)
        return false;
    switch (c.transform->Type()) {
    case MGROUP_TRANSFORM::ROTATE: {
        const auto &r = static_cast<const MGROUP_ROTATE &>(*c.transform);
        return Rotation(r, static_cast<double>(r.angle) * (f - f0), mo);
    }
    case MGROUP_TRANSFORM::TRANSLATE: {
        const auto &tr = static_cast<const MGROUP_TRANSLATE &>(*c.transform);
        Diagonal(mo.m, 1, 1, 1);
        Diagonal(mo.nm, 1, 1, 1);
        for (int i = 0; i < 3; ++i)
            mo.t[i] = tr.shift[i] * (f - f0);
        return true;
    }
    case MGROUP_TRANSFORM::SCALE:
        return Scaling(static_cast<const MGROUP_SCALE &>(*c.transform), f, f0, mo);
    case MGROUP_TRANSFORM::NULLTRANSFORM:
        break;
    }
    return false;
}

void Move(MeshGroup &g, const Motion &mo) {
    for (NTVERTEX &v : g.vertices) {
        const double p[3] = {v.x, v.y, v.z};
        const double n[3] = {v.nx, v.ny, v.nz};
        double q[3], r[3];
        for (int i = 0; i < 3; ++i) {
            q[i] = mo.m[i][0] * p[0] + mo.m[i][1] * p[1] + mo.m[i][2] * p[2] + mo.t[i];
            r[i] = mo.nm[i][0] * n[0] + mo.nm[i][1] * n[1] + mo.nm[i][2] * n[2];
        }
        const double len = std::sqrt(r[0] * r[0] + r[1] * r[1] + r[2] * r[2]);
        v.x = static_cast<float>(q[0]);
        v.y = static_cast<float>(q[1]);
        v.z = static_cast<float>(q[2]);
        if (len > 0.0) {
            v.nx = static_cast<float>(r[0] / len);
            v.ny = static_cast<float>(r[1] / len);
            v.nz = static_cast<float>(r[2] / len);
        }
    }
}

void ApplyComponent(const Visual &vis, const AnimationComponent &c) {
    const MGROUP_TRANSFORM *tr = c.transform;
    if (!tr || !tr->grp || tr->ngrp == 0)
        return;
    DevMesh *mesh = vis.At(tr->mesh);
    if (!mesh)
        return;
    for (UINT i = 0; i < tr->ngrp; ++i) {
        const UINT gi = tr->grp[i];
        if (gi >= mesh->groups.size())
            continue;
        int depth = 0;
        for (const AnimationComponent *link = &c; link && depth < kMaxDepth; link = link->parent, ++depth) {
            Motion mo;
            if (MotionOf(*link, mo))
                Move(mesh->groups[gi], mo);
        }
    }
}

} // namespace

void ApplyAnimations(Vessel &v) {
    if (!v.visual)
        return;
    for (size_t i = 0; i < v.visual->Count(); ++i)
        if (DevMesh *m = v.visual->At(i))
            m->ResetGeometry();
    for (const auto &anim : v.animations) {
        if (anim->deleted)
            continue;
        for (const auto &c : anim->components)
            ApplyComponent(*v.visual, *c);
    }
}

} // namespace hullhost
