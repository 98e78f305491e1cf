#include "dft_complex/dft_complex.h"

namespace dft_complex {

const std::vector<Row> kRows32fc = {
    {2, "2", "live 0"},
    {3, "3", "live 0"},
    {4, "4", "live 0"},
    {5, "5", "live 0"},
    {6, "PFA(2, 3)", "live 0"},
    {8, "CT(4, 2)", "live 0"},
    {9, "CT(3, 3)", "live 0"},
    {10, "PFA(5, 2)", "live 0"},
    {12, "PFA(4, 3)", "live 0"},
    {15, "PFA(5, 3)", "live 0"},
    {16, "CT(4, 4)", "live 0"},
    {18, "CT(PFA(3, 2), 3)", "bisect 0"},
    {20, "PFA(4, 5)", "bisect 0"},
    {24, "CT(4, PFA(3, 2))", "bisect 0"},
    {25, "CT(5, 5)", "bisect 0"},
    {27, "CT(CT(3, 3), 3)", "bisect 0"},
    {30, "PFA(5, PFA(2, 3))", "bisect 0"},
    {32, "CT(4, CT(4, 2))", "bisect 0"},
    {36, "PFA(4, CT(3, 3))", "bisect 0"},
    {40, "CT(PFA(5, 2), 4)", "bisect 0"},
    {45, "CT(PFA(5, 3), 3)", "bisect 0"},
    {48, "CT(4, PFA(3, 4))", "bisect 0"},
    {50, "CT(PFA(5, 2), 5)", "bisect 0"},
    {54, "CT(PFA(2, CT(3, 3)), 3)", "bisect 0"},
    {60, "CT(4, PFA(5, 3))", "bisect 0"},
    {64, "CT(CT(4, 2), CT(4, 2))", "bisect 0"},
};

}  // namespace dft_complex
