// The stage's engine, jettison and flight program steps.
#include "stage/korvan.h"

void Korvan::K_FLIGHT() {}
void Korvan::K_PGM_STEP() {}
void Korvan::K_DROP_SOZ() {}
void Korvan::K_DROP_FAIRING_START() {}
void Korvan::K_DROP_FAIRING() {}
void Korvan::K_DROP_FAIRING_STOP() {}
void Korvan::K_VENT_START() {}
void Korvan::K_VENT_STOP() {}
