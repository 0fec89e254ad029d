#pragma once

#include "compat/MemoryFigures.h"

#include <string>

/// One line that says why there are no figures, without a line end.
std::string MemoryProblemText(const MemoryProblem &problem);
