// What the host shows: annotations, the debug string, the log, the camera.
#include <algorithm>

#include "DrawAPI.h"
#include "OrbiterAPI.h"
#include "core/handle_lookup.h"
#include "core/world.h"

using hullhost::Annotation;
using hullhost::World;

namespace {
Annotation *FindNote(NOTEHANDLE h) { return hullhost::FindByHandle(World::Current().annotations, h); }
} // namespace

void oapiWriteLog(const char *line) { World::Current().WriteLog(line ? line : ""); }

char *oapiDebugString() { return World::Current().debugString; }

NOTEHANDLE oapiCreateAnnotation(bool exclusive, double size, const VECTOR3 &col) {
    auto note = std::make_unique<Annotation>();
    note->exclusive = exclusive;
    note->size = size;
    note->colour = col;
    World &w = World::Current();
    auto &notes = w.annotations;
    // Made by a vessel, the first one is its message line.
    note->owner = w.RunningVessel();
    note->messageLine = note->owner && std::none_of(notes.begin(), notes.end(), [&note](auto &other) {
                            return other->owner == note->owner && other->messageLine;
                        });
    notes.push_back(std::move(note));
    return notes.back()->Handle();
}

bool oapiDelAnnotation(NOTEHANDLE h) { return hullhost::EraseByHandle(World::Current().annotations, h); }

void oapiAnnotationSetPos(NOTEHANDLE h, double x1, double y1, double x2, double y2) {
    if (auto *n = FindNote(h)) {
        n->x1 = x1;
        n->y1 = y1;
        n->x2 = x2;
        n->y2 = y2;
    }
}

void oapiAnnotationSetSize(NOTEHANDLE h, double size) {
    if (auto *n = FindNote(h))
        n->size = size;
}

void oapiAnnotationSetColour(NOTEHANDLE h, const VECTOR3 &col) {
    if (auto *n = FindNote(h))
        n->colour = col;
}

void oapiAnnotationSetText(NOTEHANDLE h, char *note) {
    if (auto *n = FindNote(h))
        World::Current().SetAnnotationText(*n, note);
}

oapi::Pen *oapiCreatePen(int style, int width, DWORD col) {
    auto &pens = World::Current().pens;
    pens.push_back(std::make_unique<oapi::Pen>(style, width, col));
    return pens.back().get();
}

void oapiReleasePen(oapi::Pen *pen) {
    auto &pens = World::Current().pens;
    pens.erase(std::remove_if(pens.begin(), pens.end(), [pen](auto &p) { return p.get() == pen; }),
               pens.end());
}

bool oapiCameraInternal() { return World::Current().camera.internal; }
int oapiCockpitMode() { return World::Current().camera.cockpitMode; }

void oapiCameraSetCockpitDir(double polar, double azimuth, bool) {
    auto &cam = World::Current().camera;
    cam.cockpitPolar = polar;
    cam.cockpitAzimuth = azimuth;
}

OBJHANDLE oapiCameraTarget() {
    auto *f = World::Current().focus;
    return f ? f->Handle() : nullptr;
}
