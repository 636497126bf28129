// Where a sequence comes from: the vessel class's step vocabulary, and the
// configuration key that spells out a sequence's steps.
#include "frame/hullkit.h"

// HULLKIT knows no steps; vessel classes bring their own.
TimedActionTable HULLKIT::TimedActions() const { return {}; }
ConditionalActionTable HULLKIT::ConditionalActions() const { return {}; }

// A scenario names a sequence directly by its key, or by a name that the
// controller's look-up turns into the key.
std::string HULLKIT::FindSequence(const std::string &name, std::string &source) {
    source = name;
    std::string value = Cfg(name);
    if (!value.empty())
        return value;
    std::string answer;
    LookUpText(name.c_str(), answer, true);
    if (answer.empty())
        return value;
    source = answer;
    return Cfg(answer);
}
