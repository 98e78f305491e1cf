#include <gtest/gtest.h>

#include "dct4/kernels/base_case.h"

// The planner's source, whose names have internal linkage.
#include "dct4/dct4_64f.cpp"

#include "tests/dct4_planner_tests.h"
