#include "hartley/hartley.h"

namespace hartley {

using enum Form;

const std::vector<Row> kRows = {
    {2, kOutputButterflies, "bisect 0", "live 0"},  {3, kOutputButterflies, "bisect 0", "live 0"},
    {4, kOutputButterflies, "bisect 0", "live 0"},  {5, kOutputButterflies, "bisect 0", "live 0"},
    {6, kOutputButterflies, "bisect 0", "live 0"},  {7, kOutputButterflies, "bisect 0", "live 0"},
    {8, kOutputButterflies, "bisect 0", "live 0"},  {9, kOutputButterflies, "bisect 0", "live 0"},
    {10, kInputButterflies, "bisect 0", "live 0"},  {11, kOutputButterflies, "bisect 0", "live 0"},
    {12, kInputButterflies, "bisect 0", "live 0"},  {13, kInputButterflies, "bisect 0", "live 0"},
    {14, kInputButterflies, "bisect 0", "live 0"},  {15, kInputButterflies, "bisect 0", "live 0"},
    {16, kOutputButterflies, "bisect 0", "live 0"}, {17, kOutputButterflies, "bisect 0", "live 0"},
    {18, kInputButterflies, "bisect 0", "live 0"},  {19, kOutputButterflies, "bisect 0", "live 0"},
    {20, kInputButterflies, "bisect 0", "live 0"},  {21, kOutputButterflies, "bisect 0", "live 0"},
    {22, kOutputButterflies, "bisect 0", "live 0"}, {23, kInputButterflies, "bisect 0", "live 0"},
    {24, kOutputButterflies, "bisect 0", "live 0"}, {25, kInputButterflies, "bisect 0", "live 0"},
    {26, kOutputButterflies, "bisect 0", "live 0"}, {27, kInputButterflies, "bisect 0", "live 0"},
    {28, kInputButterflies, "bisect 0", "live 0"},  {29, kOutputButterflies, "bisect 0", "live 0"},
    {30, kInputButterflies, "bisect 0", "live 0"},  {31, kInputButterflies, "bisect 0", "live 0"},
    {32, kInputButterflies, "bisect 0", "live 0"},  {33, kInputButterflies, "bisect 0", "live 0"},
    {34, kInputButterflies, "bisect 0", "live 0"},  {35, kInputButterflies, "bisect 0", "live 0"},
    {36, kInputButterflies, "bisect 0", "live 0"},  {37, kInputButterflies, "bisect 0", "live 0"},
    {38, kOutputButterflies, "bisect 0", "live 0"}, {39, kOutputButterflies, "bisect 0", "live 0"},
    {40, kInputButterflies, "bisect 0", "live 0"},  {41, kOutputButterflies, "bisect 0", "live 0"},
    {42, kInputButterflies, "bisect 0", "live 0"},  {43, kInputButterflies, "bisect 0", "live 0"},
    {44, kInputButterflies, "bisect 0", "live 0"},  {45, kInputButterflies, "bisect 0", "live 0"},
    {46, kInputButterflies, "bisect 0", "live 0"},  {47, kOutputButterflies, "bisect 0", "live 0"},
    {48, kInputButterflies, "bisect 0", "live 0"},  {49, kOutputButterflies, "bisect 0", "live 0"},
    {50, kOutputButterflies, "bisect 0", "live 0"}, {51, kInputButterflies, "bisect 0", "live 0"},
    {52, kOutputButterflies, "bisect 0", "live 0"}, {53, kInputButterflies, "bisect 0", "live 0"},
    {54, kInputButterflies, "bisect 0", "live 0"},  {55, kInputButterflies, "bisect 0", "live 0"},
    {56, kInputButterflies, "bisect 0", "live 0"},  {57, kOutputButterflies, "bisect 0", "live 0"},
    {58, kOutputButterflies, "bisect 0", "live 0"}, {59, kOutputButterflies, "bisect 0", "live 0"},
    {60, kInputButterflies, "bisect 0", "live 0"},  {61, kOutputButterflies, "bisect 0", "live 0"},
    {62, kInputButterflies, "bisect 0", "live 0"},  {63, kOutputButterflies, "bisect 0", "live 0"},
    {64, kInputButterflies, "bisect 0", "live 0"},
};

}  // namespace hartley
