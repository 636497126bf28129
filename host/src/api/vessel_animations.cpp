// Animations: states that move mesh groups through the components that the
// module adds. An animation's id is its position in the list; a deleted one
// keeps its place. Every change of state moves the visual's groups at once.
#include <algorithm>

#include "VesselAPI.h"
#include "core/vessel.h"
#include "visual/animation_apply.h"

using hullhost::Animation;
using hullhost::AnimationComponent;
using hullhost::Vessel;

namespace {

Animation *Live(const Vessel &v, UINT anim) {
    return anim < v.animations.size() && !v.animations[anim]->deleted ? v.animations[anim].get() : nullptr;
}

AnimationComponent *FindComponent(const Vessel &v, ANIMATIONCOMPONENT_HANDLE h) {
    if (!h)
        return nullptr;
    for (auto &a : v.animations)
        for (auto &c : a->components)
            if (c->Handle() == h)
                return c.get();
    return nullptr;
}

// Unhooks a component from its parent and its children before it goes.
void Unlink(AnimationComponent &c) {
    if (c.parent)
        std::erase(c.parent->children, &c);
    for (AnimationComponent *child : c.children)
        child->parent = nullptr;
    c.children.clear();
}

} // namespace

UINT VESSEL::CreateAnimation(double initial_state) const {
    auto a = std::make_unique<Animation>();
    a->defaultState = initial_state;
    a->state = initial_state;
    vessel->animations.push_back(std::move(a));
    return static_cast<UINT>(vessel->animations.size() - 1);
}

bool VESSEL::DelAnimation(UINT anim) const {
    Animation *a = Live(*vessel, anim);
    if (!a)
        return false;
    for (auto &c : a->components)
        Unlink(*c);
    a->components.clear();
    a->deleted = true;
    hullhost::ApplyAnimations(*vessel);
    return true;
}

ANIMATIONCOMPONENT_HANDLE VESSEL::AddAnimationComponent(UINT anim, double state0, double state1,
                                                        MGROUP_TRANSFORM *trans,
                                                        ANIMATIONCOMPONENT_HANDLE parent) const {
    Animation *a = Live(*vessel, anim);
    AnimationComponent *p = FindComponent(*vessel, parent);
    if (!a || !trans || (parent && !p))
        return nullptr;
    auto c = std::make_unique<AnimationComponent>();
    c->state0 = state0;
    c->state1 = state1;
    c->transform = trans;
    c->parent = p;
    c->animation = a;
    if (p)
        p->children.push_back(c.get());
    a->components.push_back(std::move(c));
    hullhost::ApplyAnimations(*vessel);
    return a->components.back()->Handle();
}

bool VESSEL::DelAnimationComponent(UINT anim, ANIMATIONCOMPONENT_HANDLE hAC) {
    Animation *a = Live(*vessel, anim);
    if (!a)
        return false;
    auto it = std::find_if(a->components.begin(), a->components.end(),
                           [hAC](auto &c) { return c->Handle() == hAC; });
    if (it == a->components.end())
        return false;
    Unlink(**it);
    a->components.erase(it);
    hullhost::ApplyAnimations(*vessel);
    return true;
}

bool VESSEL::SetAnimation(UINT anim, double state) const {
    Animation *a = Live(*vessel, anim);
    if (!a)
        return false;
    if (a->state != state) {
        a->state = state;
        hullhost::ApplyAnimations(*vessel);
    }
    return true;
}

// -1 for an animation that doesn't exist.
double VESSEL::GetAnimation(UINT anim) const {
    Animation *a = Live(*vessel, anim);
    return a ? a->state : -1.0;
}

UINT VESSEL::GetAnimationCount() const { return static_cast<UINT>(vessel->animations.size()); }
