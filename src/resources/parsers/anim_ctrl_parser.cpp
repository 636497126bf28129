// The animation controller record: its keys, speeds and sounds, and the
// animation it drives, whose range and first state it takes over.
#include "frame/hullkit.h"

template <> void HkResources<ANIM_CTRL_REC>::ParseRecord(std::string name, ANIM_CTRL_REC *record) {
    record->name = name;
    record->anim = GetString(name, "Anim");
    record->vel = GetDouble(name, "Vel");
    record->accel = GetDouble(name, "Accel");
    record->noHardStopValue = GetInt(name, "NoHardStop");
    record->kMinus = GetInt(name, "KMinus");
    record->kMinusCtrl = GetInt(name, "KMinusCtrl");
    record->kMinusShift = GetInt(name, "KMinusShift");
    record->kPlus = GetInt(name, "KPlus");
    record->kPlusCtrl = GetInt(name, "KPlusCtrl");
    record->kPlusShift = GetInt(name, "KPlusShift");
    record->keepKDownValue = GetInt(name, "KeepKDown");
    record->sndMove = GetString(name, "SndMove");
    record->sndMinusStop = GetString(name, "SndMinusStop");
    record->sndPlusStop = GetString(name, "SndPlusStop");

    record->noHardStop = record->noHardStopValue != 0;
    record->keepKDown = record->keepKDownValue != 0;
    record->vel0 = record->vel;
    record->target = -1.0;
    record->direction = 0;
    record->externalDrive = false;
    // The sounds are looked up once they are loaded.
    record->sndMoveIndex = record->sndMinusStopIndex = record->sndPlusStopIndex = -1;

    // A controller of an animation that doesn't exist keeps the index -1 and
    // never moves.
    record->animIndex = owner->AnimTable.IndexOf(record->anim);
    const ANIM_REC *anim = owner->AnimTable.Find(record->anim);
    if (!anim) {
        record->animIndex = -1;
        return;
    }
    record->animation = anim->animation;
    record->from = anim->from;
    record->to = anim->to;
    record->state = anim->start;
}
