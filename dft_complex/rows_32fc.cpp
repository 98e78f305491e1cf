#include "dft_complex/dft_complex.h"

namespace dft_complex {

using enum networks::Leaves;

// At 46 and 62 the second block takes its samples in natural order, and twiddle factors instead of
// a map of the input: up to signs, the values between the stages are those of PFA(23, 2) and
// PFA(31, 2).
const std::vector<Row32fc> kRows32fc = {
    {2, "2", kSideBySide},
    {3, "3", kSideBySide},
    {4, "4", kSideBySide},
    {5, "5", kSideBySide},
    {6, "PFA(2, 3)", kInLanes},
    {7, "Rader(PFA(2, 3), PFA(3, 2))", kInLanes},
    {8, "CT(4, 2)", kSideBySide},
    {9, "CT(3, 3)", kInLanes, "", "011"},
    {10, "PFA(5, 2)", kInLanes, "1", "1"},
    {11, "Rader(PFA(5, 2), PFA(2, 5))", kSideBySide},
    {12, "PFA(4, 3)", kInLanes, "01", ""},
    {13, "Rader(PFA(4, 3), PFA(3, 4))", kInLanes},
    {14, "PFA(2, 7)", kInLanes},
    {15, "PFA(5, 3)", kInLanes, "01", "01"},
    {16, "CT(4, 4)", kSideBySide},
    {17, "Rader(CT(4, 4), CT(4, 4))", kInLanes},
    {18, "CT(PFA(3, 2), 3)", kSideBySide},
    {19, "Rader(CT(PFA(3, 2), 3), CT(3, PFA(3, 2)))", kSideBySide},
    {20, "PFA(4, 5)", kInLanes, "", "01"},
    {21, "PFA(7, 3)", kSideBySide},
    {22, "PFA(2, 11)", kInLanes},
    {23, "Rader(PFA(2, 11), PFA(11, 2))", kInLanes},
    {24, "CT(4, PFA(3, 2))", kSideBySide},
    {25, "CT(5, 5)", kInLanes, "011", "011"},
    {26, "PFA(13, 2)", kSideBySide},
    {27, "CT(CT(3, 3), 3)", kInLanes, "0010001", "001111"},
    {28, "PFA(4, 7)", kInLanes, "01", ""},
    {29, "Rader(PFA(4, 7), PFA(7, 4))", kInLanes},
    {30, "PFA(5, PFA(2, 3))", kInLanes, "1", "1"},
    {31, "Rader(PFA(5, PFA(2, 3)), PFA(3, PFA(5, 2)))", kSideBySide},
    {32, "CT(4, CT(4, 2))", kSideBySide},
    {33, "PFA(11, 3)", kSideBySide},
    {34, "PFA(2, 17)", kInLanes},
    {35, "PFA(5, 7)", kInLanes, "01", "01"},
    {36, "PFA(4, CT(3, 3))", kInLanes, "", "011"},
    {37, "Rader(PFA(4, CT(3, 3)), PFA(CT(3, 3), 4))", kInLanes},
    {38, "PFA(2, 19)", kInLanes},
    {39, "PFA(13, 3)", kSideBySide},
    {40, "CT(PFA(5, 2), 4)", kSideBySide},
    {41, "Rader(CT(PFA(5, 2), 4), CT(4, PFA(5, 2)))", kSideBySide},
    {42, "PFA(7, PFA(2, 3))", kSideBySide},
    {43, "Rader(PFA(7, PFA(2, 3)), PFA(3, PFA(7, 2)))", kSideBySide},
    {44, "PFA(4, 11)", kInLanes, "01", ""},
    {45, "CT(PFA(5, 3), 3)", kInLanes, "00111", "00111"},
    {46, "CT(23, 2)", kSideBySide},
    {47, "chirp(PFA(3, CT(4, CT(2, 4))))", kSideBySide, "1", "1"},
    {48, "CT(4, PFA(3, 4))", kSideBySide},
    {49, "CT(7, 7)", kSideBySide, "101", "101"},
    {50, "CT(PFA(5, 2), 5)", kSideBySide},
    {51, "PFA(17, 3)", kSideBySide},
    {52, "PFA(4, 13)", kInLanes, "", "01"},
    {53, "Rader(PFA(4, 13), PFA(13t, 4))", kInLanes},
    {54, "CT(PFA(2, CT(3, 3)), 3)", kInLanes, "001011", "001011"},
    {55, "PFA(5, 11)", kSideBySide},
    {56, "CT(PFA(7, 2), 4)", kSideBySide},
    {57, "PFA(19, 3)", kSideBySide},
    {58, "PFA(2, 29)", kInLanes},
    {59, "chirp(CT(CT(2, 4), CT(2, CT(4, 2))))", kSideBySide},
    {60, "CT(4, PFA(5, 3))", kInLanes, "", "011"},
    {61, "Rader(CT(4, PFA(5, 3)), CT(PFA(5, 3), 4))", kInLanes},
    {62, "CT(31, 2)", kSideBySide},
    {63, "PFA(CT(3, 3), 7)", kSideBySide},
    {64, "CT(CT(4, 2), CT(4, 2))", kSideBySide},
};

// 7 and 11 are direct. 13t stands in the inverse half of 53.
const networks::RaderTable& rader_32fc() {
  static const networks::RaderTable table(
      "dft_complex/rows_32fc.cpp", {
                                       {"11r", "PFA(5w, 2)", "5", "5"},
                                       {"13", "PFA(3, 4)", "PFA(2, 3)", "PFA(2, 3)"},
                                       {"13t", "PFA(3, 4)", "PFA(3, 2)", "PFA(3, 2)", 1},
                                       {"17", "CT(4, 4)", "CT(4, 2)", "Z(4)"},
                                       {"19", "CT(PFA(3, 2), 3n)", "CT(3, 3)", "CT(3, 3n)"},
                                       {"23", "PFA(2, 11)", "11r", "11r"},
                                       {"29", "PFA(4, 7)", "PFA(2, 7)", "PFA(2, 7)"},
                                       {"31", "PFA(3, PFA(5w, 2))", "PFA(5, 3)", "PFA(5, 3)"},
                                   });
  return table;
}

}  // namespace dft_complex
