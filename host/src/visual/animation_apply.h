// Puts a vessel's animations onto its visual: each group that a component
// names is moved from the geometry of its mesh file, which shows the
// animation at its default state, to the geometry of the current state.
#pragma once

namespace hullhost {

class Vessel;

// Recomputes every animated group from the templates. A child component's
// motion comes first, then its parent's, and so on up, each at its own
// animation's state; this is the same as moving the child's axes along with
// the parent. Allocates nothing.
void ApplyAnimations(Vessel &v);

} // namespace hullhost
