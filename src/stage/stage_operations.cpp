// The stage's attitude loop and flight program steps.
#include "stage/korvan.h"

void Korvan::K_FLIGHT() {}
void Korvan::K_PGM_STEP() {}
