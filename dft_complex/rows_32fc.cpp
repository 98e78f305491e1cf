#include "dft_complex/dft_complex.h"

namespace dft_complex {

using enum networks::Leaves;

// At 46 and 62 the second block takes its samples in natural order, and twiddle factors instead of
// a map of the input: up to signs, the values between the stages are those of PFA(23, 2) and
// PFA(31, 2).
const std::vector<Row32fc> kRows32fc = {
    {2, "2", kSideBySide, "bisect 2", "live 0"},
    {3, "3", kSideBySide, "bisect 2", "bisect 2"},
    {4, "4", kSideBySide, "bisect 14", "bisect 14"},
    {5, "5", kSideBySide, "bisect 13", "bisect 4"},
    {6, "PFA(2, 3)", kInLanes, "live 3", "live 3"},
    {7, "Rader(PFA(2, 3), PFA(3, 2))", kInLanes, "bisect 12", "bisect 12"},
    {8, "CT(4, 2)", kSideBySide, "bisect 12", "bisect 12"},
    {9, "CT(3, 3)", kInLanes, "bisect 4", "live 1"},
    {10, "PFA(5, 2)", kInLanes, "bisect 11", "bisect 11"},
    {11, "Rader(PFA(5, 2), PFA(2, 5))", kSideBySide, "bisect 11", "bisect 11"},
    {12, "PFA(4, 3)", kInLanes, "live 2", "live 2"},
    {13, "Rader(PFA(4, 3), PFA(3, 4))", kInLanes, "bisect 12", "bisect 22"},
    {14, "PFA(2, 7)", kInLanes, "bisect 14", "bisect 14"},
    {15, "PFA(5, 3)", kInLanes, "live 0", "live 0"},
    {16, "CT(4, 4)", kSideBySide, "bisect 23", "bisect 16"},
    {17, "Rader(CT(4, 4), CT(4, 4))", kInLanes, "bisect 2", "bisect 2"},
    {18, "CT(PFA(3, 2), 3)", kSideBySide, "bisect 19", "bisect 4"},
    {19, "Rader(CT(PFA(3, 2), 3), CT(3, PFA(3, 2)))", kSideBySide, "bisect 2", "bisect 22"},
    {20, "PFA(4, 5)", kInLanes, "bisect 22", "bisect 12"},
    {21, "PFA(7, 3)", kSideBySide, "bisect 11", "bisect 22"},
    {22, "PFA(2, 11)", kInLanes, "bisect 11", "bisect 11"},
    {23, "Rader(PFA(2, 11), PFA(11, 2))", kInLanes, "bisect 0", "bisect 2"},
    {24, "CT(4, PFA(3, 2))", kSideBySide, "bisect 16", "bisect 11"},
    {25, "CT(5, 5)", kInLanes, "bisect 12", "bisect 6"},
    {26, "PFA(13, 2)", kSideBySide, "bisect 14", "bisect 14"},
    {27, "CT(CT(3, 3), 3)", kInLanes, "bisect 8", "bisect 4"},
    {28, "PFA(4, 7)", kInLanes, "bisect 12", "bisect 4"},
    {29, "Rader(PFA(4, 7), PFA(7, 4))", kInLanes, "bisect 11", "bisect 11"},
    {30, "PFA(5, PFA(2, 3))", kInLanes, "bisect 3", "bisect 23"},
    {31, "Rader(PFA(5, PFA(2, 3)), PFA(3, PFA(5, 2)))", kSideBySide, "bisect 1", "bisect 14"},
    {32, "CT(4, CT(4, 2))", kSideBySide, "bisect 14", "bisect 22"},
    {33, "PFA(11, 3)", kSideBySide, "bisect 11", "bisect 11"},
    {34, "PFA(2, 17)", kInLanes, "bisect 0", "bisect 0"},
    {35, "PFA(5, 7)", kInLanes, "live 0", "live 0"},
    {36, "PFA(4, CT(3, 3))", kInLanes, "bisect 5", "bisect 4"},
    {37, "Rader(PFA(4, CT(3, 3)), PFA(CT(3, 3), 4))", kInLanes, "bisect 7", "bisect 7"},
    {38, "PFA(2, 19)", kInLanes, "bisect 22", "bisect 11"},
    {39, "PFA(13, 3)", kSideBySide, "bisect 1", "bisect 4"},
    {40, "CT(PFA(5, 2), 4)", kSideBySide, "bisect 16", "bisect 22"},
    {41, "Rader(CT(PFA(5, 2), 4), CT(4, PFA(5, 2)))", kSideBySide, "bisect 22", "bisect 22"},
    {42, "PFA(7, PFA(2, 3))", kSideBySide, "bisect 4", "bisect 14"},
    {43, "Rader(PFA(7, PFA(2, 3)), PFA(3, PFA(7, 2)))", kSideBySide, "bisect 0", "bisect 0"},
    {44, "PFA(4, 11)", kInLanes, "bisect 22", "bisect 0"},
    {45, "CT(PFA(5, 3), 3)", kInLanes, "bisect 1", "bisect 3"},
    {46, "CT(23, 2)", kSideBySide, "bisect 2", "bisect 22"},
    {47, "chirp(PFA(3, CT(4, CT(2, 4))))", kSideBySide, "bisect 11", "bisect 22"},
    {48, "CT(4, PFA(3, 4))", kSideBySide, "bisect 11", "bisect 13"},
    {49, "CT(7, 7)", kSideBySide, "bisect 22", "bisect 12"},
    {50, "CT(PFA(5, 2), 5)", kSideBySide, "bisect 3", "bisect 3"},
    {51, "PFA(17, 3)", kSideBySide, "bisect 12", "bisect 4"},
    {52, "PFA(4, 13)", kInLanes, "bisect 1", "bisect 7"},
    {53, "Rader(PFA(4, 13), PFA(13t, 4))", kInLanes, "bisect 11", "bisect 11"},
    {54, "CT(PFA(2, CT(3, 3)), 3)", kInLanes, "bisect 6", "bisect 6"},
    {55, "PFA(5, 11)", kSideBySide, "bisect 11", "bisect 11"},
    {56, "CT(PFA(7, 2), 4)", kSideBySide, "bisect 12", "live 0"},
    {57, "PFA(19, 3)", kSideBySide, "bisect 1", "bisect 7"},
    {58, "PFA(2, 29)", kInLanes, "bisect 11", "bisect 1"},
    {59, "chirp(CT(CT(2, 4), CT(2, CT(4, 2))))", kSideBySide, "bisect 12", "bisect 4"},
    {60, "CT(4, PFA(5, 3))", kInLanes, "bisect 8", "bisect 15"},
    {61, "Rader(CT(4, PFA(5, 3)), CT(PFA(5, 3), 4))", kInLanes, "bisect 2", "bisect 2"},
    {62, "CT(31, 2)", kSideBySide, "bisect 11", "bisect 11"},
    {63, "PFA(CT(3, 3), 7)", kSideBySide, "bisect 2", "bisect 11"},
    {64, "CT(CT(4, 2), CT(4, 2))", kSideBySide, "bisect 2", "bisect 20"},
};

// 7 and 11 are direct. 13t stands in the inverse half of 53.
const networks::RaderTable kRader32fc({
    {"11r", "PFA(5w, 2)", "5", "5"},
    {"13", "PFA(3, 4)", "PFA(2, 3)", "PFA(2, 3)"},
    {"13t", "PFA(3, 4)", "PFA(3, 2)", "PFA(3, 2)", 1},
    {"17", "CT(4, 4)", "CT(4, 2)", "Z(4)"},
    {"19", "CT(PFA(3, 2), 3n)", "CT(3, 3)", "CT(3, 3n)"},
    {"23", "PFA(2, 11)", "11r", "11r"},
    {"29", "PFA(4, 7)", "PFA(2, 7)", "PFA(2, 7)"},
    {"31", "PFA(3, PFA(5w, 2))", "PFA(5, 3)", "PFA(5, 3)"},
});

}  // namespace dft_complex
