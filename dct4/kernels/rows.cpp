#include "dct4/kernels/kernels.h"

namespace dct4 {

using enum Kind;

// The second stage of the base case 32 is split once by 4, that of 8 values twice by 2: the same
// values, rounded differently.
const std::vector<Row> kRows = {
    {kFirstStage, 2, {}},       {kFirstStage, 4, {}},
    {kFirstStage, 8, {2}},      {kFirstStage, 16, {4}},
    {kFirstStage, 32, {2, 4}},  {kFirstStage, 64, {4, 4}},
    {kSkewSum, 2, {}},          {kSkewSum, 4, {}},
    {kSkewSum, 8, {}},          {kSkewSum, 16, {}},
    {kSkewSum, 32, {}},         {kSecondStage, 1, {}},
    {kSecondStage, 2, {}},      {kSecondStage, 4, {2}},
    {kSecondStage, 8, {2, 2}},  {kSecondStage, 16, {2, 2, 2}},
    {kSecondStage, 32, {4, 4}}, {kBaseCase, 2, {}},
    {kBaseCase, 4, {}},         {kBaseCase, 8, {}},
    {kBaseCase, 16, {2}},       {kBaseCase, 32, {4}},
};

}  // namespace dct4
