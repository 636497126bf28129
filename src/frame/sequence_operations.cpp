// Timed and conditional sequences.
#include "frame/hullkit.h"

void HULLKIT::H_COND_SEQ() {}
void HULLKIT::H_TIMED_SEQ() {}
