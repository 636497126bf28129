// Timed and conditional sequences.
#include "frame/hullkit.h"

void HULLKIT::H_COND_SEQ() {}
void HULLKIT::H_TIMED_SEQ() {}

// Restarting a sequence from its scenario line: no sequence table is known to
// this vessel yet, so nothing starts and no sequence text is saved.
void HULLKIT::StartTimedSequence(const std::string &, double) {}
void HULLKIT::StartConditionalSequence(const std::string &, const char *) {}
std::string HULLKIT::TimedSequenceText() const { return std::string(); }
std::string HULLKIT::ConditionalSequenceText() const { return std::string(); }
void HULLKIT::ArmNextConditional() {}
void HULLKIT::StopConditionalWatch() {}
