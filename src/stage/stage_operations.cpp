// The stage's flight program steps.
#include "stage/korvan.h"

void Korvan::K_PGM_STEP() {}
