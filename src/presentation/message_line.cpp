// The on-screen message line, which empties itself four seconds after a text.
#include <cstdio>

#include "frame/hullkit.h"

void HULLKIT::ShowMessage(const char *text) {
    // Held keys repeat their refusal every frame: no allocation on this road.
    char line[512];
    std::snprintf(line, sizeof line, "%s", text ? text : "");
    oapiAnnotationSetText(MessageNote, line);
    // An armed clearing isn't armed again: a newer text keeps the first deadline.
    AddOneShot(4.0, &HULLKIT::H_HIDE_ANNOT);
}

void HULLKIT::H_HIDE_ANNOT() {
    char empty[] = "";
    oapiAnnotationSetText(MessageNote, empty);
}
