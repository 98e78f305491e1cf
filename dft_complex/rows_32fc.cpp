#include "dft_complex/dft_complex.h"

namespace dft_complex {

using enum networks::Leaves;

const std::vector<Row> kRows32fc = {
    {2, "2", kSideBySide, "bisect 0", "bisect 0"},
    {3, "3", kSideBySide, "bisect 2", "bisect 2"},
    {4, "4", kSideBySide, "bisect 14", "bisect 14"},
    {5, "5", kSideBySide, "bisect 13", "bisect 4"},
    {6, "PFA(2, 3)", kInLanes, "live 3", "live 3"},
    {8, "CT(4, 2)", kSideBySide, "bisect 12", "bisect 12"},
    {9, "CT(3, 3)", kInLanes, "bisect 4", "live 1"},
    {10, "PFA(5, 2)", kInLanes, "bisect 11", "bisect 11"},
    {12, "PFA(4, 3)", kInLanes, "live 2", "live 2"},
    {15, "PFA(5, 3)", kInLanes, "live 0", "live 0"},
    {16, "CT(4, 4)", kSideBySide, "bisect 23", "bisect 16"},
    {18, "CT(PFA(3, 2), 3)", kSideBySide, "bisect 19", "bisect 4"},
    {20, "PFA(4, 5)", kInLanes, "bisect 22", "bisect 12"},
    {24, "CT(4, PFA(3, 2))", kSideBySide, "bisect 16", "bisect 11"},
    {25, "CT(5, 5)", kInLanes, "bisect 12", "bisect 6"},
    {27, "CT(CT(3, 3), 3)", kInLanes, "bisect 8", "bisect 4"},
    {30, "PFA(5, PFA(2, 3))", kInLanes, "bisect 3", "bisect 23"},
    {32, "CT(4, CT(4, 2))", kSideBySide, "bisect 14", "bisect 22"},
    {36, "PFA(4, CT(3, 3))", kInLanes, "bisect 5", "bisect 4"},
    {40, "CT(PFA(5, 2), 4)", kSideBySide, "bisect 16", "bisect 22"},
    {45, "CT(PFA(5, 3), 3)", kInLanes, "bisect 1", "bisect 3"},
    {48, "CT(4, PFA(3, 4))", kSideBySide, "bisect 11", "bisect 13"},
    {50, "CT(PFA(5, 2), 5)", kSideBySide, "bisect 3", "bisect 3"},
    {54, "CT(PFA(2, CT(3, 3)), 3)", kInLanes, "bisect 6", "bisect 6"},
    {60, "CT(4, PFA(5, 3))", kInLanes, "bisect 8", "bisect 15"},
    {64, "CT(CT(4, 2), CT(4, 2))", kSideBySide, "bisect 2", "bisect 20"},
};

}  // namespace dft_complex
