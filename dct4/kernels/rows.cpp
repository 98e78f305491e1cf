#include "dct4/kernels/kernels.h"

namespace dct4 {

using enum Kind;

// The second stage of the base case 32 is split once by 4, that of 8 values twice by 2: the same
// values, rounded differently.
const std::vector<Row> kRows = {
    {kFirstStage, 2, {}, "bisect 0", "bisect 0"},
    {kFirstStage, 4, {}, "bisect 0", "live 1"},
    {kFirstStage, 8, {2}, "bisect 3", "live 1"},
    {kFirstStage, 16, {4}, "bisect 4", "bisect 4"},
    {kFirstStage, 32, {2, 4}, "bisect 5", "bisect 2"},
    {kFirstStage, 64, {4, 4}, "bisect 5", "bisect 1"},
    {kSkewSum, 2, {}, "live 0", "live 1"},
    {kSkewSum, 4, {}, "bisect 1", "bisect 1"},
    {kSkewSum, 8, {}, "bisect 0", "bisect 0"},
    {kSkewSum, 16, {}, "bisect 2", "bisect 4"},
    {kSkewSum, 32, {}, "bisect 2", "bisect 1"},
    {kSecondStage, 1, {}, "bisect 0", "bisect 0"},
    {kSecondStage, 2, {}, "bisect 0", "bisect 0"},
    {kSecondStage, 4, {2}, "bisect 0", "live 0"},
    {kSecondStage, 8, {2, 2}, "live 0", "live 0"},
    {kSecondStage, 16, {2, 2, 2}, "bisect 1", "bisect 0"},
    {kSecondStage, 32, {4, 4}, "bisect 0", "bisect 0"},
    {kBaseCase, 2, {}, "bisect 0", "bisect 0"},
    {kBaseCase, 4, {}, "bisect 0", "bisect 0"},
    {kBaseCase, 8, {}, "bisect 4", "bisect 1"},
    {kBaseCase, 16, {2}, "live 1", "bisect 0"},
    {kBaseCase, 32, {4}, "bisect 5", "bisect 1"},
};

}  // namespace dct4
