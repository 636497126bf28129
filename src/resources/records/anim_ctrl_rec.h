// A controller that drives the state of an animation.
#pragma once

#include <cstdint>
#include <string>

#include "Orbitersdk.h"
#include "resources/hk_resources.h"

struct ANIM_CTRL_REC {
    static constexpr char kTypeName[] = "ANIM_CTRL_REC";

    std::string name;
    std::string anim; // name of the ANIM_REC driven
    double vel = 0.0;
    double accel = 0.0;
    int32_t noHardStopValue = 0;
    int32_t kMinus = 0;
    int32_t kMinusCtrl = 0;
    int32_t kMinusShift = 0;
    int32_t kPlus = 0;
    int32_t kPlusCtrl = 0;
    int32_t kPlusShift = 0;
    int32_t keepKDownValue = 0;
    std::string sndMove;
    std::string sndMinusStop;
    std::string sndPlusStop;
    bool noHardStop = false;
    int32_t sndMoveIndex = -1;
    int32_t sndMinusStopIndex = -1;
    int32_t sndPlusStopIndex = -1;
    bool keepKDown = false;
    int32_t animIndex = 0;
    uint32_t animation = 0;
    double from = 0.0;
    double to = 0.0;
    double state = 0.0;
    double target = -1.0;
    int32_t direction = 0;
    double vel0 = 0.0;
    bool externalDrive = false;
};

template <> void HkResources<ANIM_CTRL_REC>::ParseRecord(std::string name, ANIM_CTRL_REC *record);
