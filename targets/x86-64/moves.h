// Lane moves.
#pragma once

#include "frame/sse_moves.h"
