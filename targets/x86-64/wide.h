// The widest vectors.
#pragma once

#include "frame/sse_width.h"
