// The on-screen message line, which empties itself four seconds after a text.
#include <string>

#include "frame/hullkit.h"

void HULLKIT::ShowMessage(const char *text) {
    std::string line = text ? text : "";
    oapiAnnotationSetText(MessageNote, line.data());
    // An armed clearing isn't armed again: a newer text keeps the first deadline.
    AddOneShot(4.0, &HULLKIT::H_HIDE_ANNOT);
}

void HULLKIT::H_HIDE_ANNOT() {
    char empty[] = "";
    oapiAnnotationSetText(MessageNote, empty);
}
