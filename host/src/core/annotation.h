// An on-screen text of the host, made by oapiCreateAnnotation.
#pragma once

#include <string>

#include "OrbiterAPI.h"

namespace hullhost {

class Vessel;

struct Annotation {
    bool exclusive = false;
    double size = 1.0;
    VECTOR3 colour{1, 1, 1};
    double x1 = 0, y1 = 0, x2 = 1, y2 = 1;
    std::string text;
    // The vessel whose constructor or callback created it, while that vessel
    // exists. A vessel's first annotation is its message line.
    Vessel *owner = nullptr;
    bool messageLine = false;
    NOTEHANDLE Handle() { return reinterpret_cast<NOTEHANDLE>(this); }
};

} // namespace hullhost
