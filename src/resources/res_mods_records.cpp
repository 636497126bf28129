// What each of the four tables with run-time changes counts as a record's
// state, as the text saved for it and as that text applied after creation.
#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "frame/hullkit.h"

namespace {

// Exactly 0 and 1 are written bare, any other value with six decimals.
std::string LevelText(double value) {
    char buffer[64];
    if (value == 0.0 || value == 1.0)
        std::snprintf(buffer, sizeof buffer, "%1.0f", value);
    else
        std::snprintf(buffer, sizeof buffer, "%f", value);
    return buffer;
}

// The text of a value that differs from its unchanged one; empty when it
// doesn't, or when its text reads back as the unchanged value: such a change
// doesn't survive a reload, and the next save mustn't differ from this one.
std::string ChangeText(double value, double unchanged) {
    if (value == unchanged)
        return std::string();
    std::string text = LevelText(value);
    return std::atof(text.c_str()) == unchanged ? std::string() : text;
}

} // namespace

std::string HULLKIT::ModificationText(const std::string &name, TANK_REC *record) {
    if (name == "Virtual" || !record->handle)
        return std::string();
    double fill = GetPropellantMass(record->handle) / GetPropellantMaxMass(record->handle);
    // A tank without capacity gives 0/0, which counts as empty.
    if (std::isnan(fill))
        fill = 0.0;
    return ChangeText(fill, 1.0);
}

void HULLKIT::ApplyRecordMods(const std::string &, const std::string &value, TANK_REC *record) {
    if (record->handle)
        SetPropellantMass(record->handle, GetPropellantMaxMass(record->handle) * std::atof(value.c_str()));
}

// The spotlight and shine groups follow their lights and aren't saved.
std::string HULLKIT::ModificationText(const std::string &name, THRUSTERGROUP_REC *record) {
    if (name.find("Spotlight") != std::string::npos || name.find("Shine") != std::string::npos ||
        !record->handle)
        return std::string();
    const double level = GetThrusterGroupLevel(record->handle);
    return ChangeText(level, 0.0);
}

void HULLKIT::ApplyRecordMods(const std::string &, const std::string &value, THRUSTERGROUP_REC *record) {
    if (record->handle)
        SetThrusterGroupLevel(record->handle, std::atof(value.c_str()));
}

// A controller is changed when it doesn't stand where its animation starts.
std::string HULLKIT::ModificationText(const std::string &, ANIM_CTRL_REC *record) {
    const ANIM_REC *anim = AnimTable.At(record->animIndex);
    const double start = anim ? anim->start : 0.0;
    return ChangeText(record->state, start);
}

void HULLKIT::ApplyRecordMods(const std::string &, const std::string &value, ANIM_CTRL_REC *record) {
    record->state = std::atof(value.c_str());
    SetAnimation(record->animation, record->state);
}

std::string HULLKIT::ModificationText(const std::string &, MESH_REC *record) {
    std::string text;
    char buffer[32];
    if (record->load != record->load0) {
        std::snprintf(buffer, sizeof buffer, "Load!%d,", record->load ? 1 : 0);
        text += buffer;
    }
    if (record->vis != record->vis0) {
        std::snprintf(buffer, sizeof buffer, "Flags!%d,", static_cast<int>(record->vis));
        text += buffer;
    }
    return text;
}

// "Load!n," loads a mesh that wasn't loaded (it is never unloaded), and
// "Flags!n," sets its visibility; other parts are passed over.
void HULLKIT::ApplyRecordMods(const std::string &, const std::string &value, MESH_REC *record) {
    std::size_t begin = 0;
    while (begin < value.size()) {
        std::size_t end = value.find(',', begin);
        if (end == std::string::npos)
            end = value.size();
        const std::string part = value.substr(begin, end - begin);
        begin = end + 1;
        const std::size_t bang = part.find('!');
        const std::string word = part.substr(0, bang);
        const int number = bang == std::string::npos ? 0 : std::atoi(part.c_str() + bang + 1);
        if (word == "Load") {
            record->load = number == 1;
            LoadMesh(record, false, false);
        } else if (word == "Flags") {
            record->vis = number;
            if (record->added)
                SetMeshVisibilityMode(record->index, static_cast<WORD>(number));
        }
    }
}
