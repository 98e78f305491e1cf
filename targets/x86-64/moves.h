// Operations that are written in their own way.
#pragma once

#include "frame/sse_moves.h"
