// An engine file that reaches outward into the calculation layer: the direction check must refuse it.
#include "calc/calc_batch.h"
#include "core/project_state.h"
