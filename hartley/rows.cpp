#include "hartley/hartley.h"

namespace hartley {

using enum Form;

const std::vector<Row> kRows = {
    {2, kOutputButterflies},  {3, kOutputButterflies},  {4, kOutputButterflies},
    {5, kOutputButterflies},  {6, kOutputButterflies},  {7, kOutputButterflies},
    {8, kOutputButterflies},  {9, kOutputButterflies},  {10, kInputButterflies},
    {11, kOutputButterflies}, {12, kInputButterflies},  {13, kInputButterflies},
    {14, kInputButterflies},  {15, kInputButterflies},  {16, kOutputButterflies},
    {17, kOutputButterflies}, {18, kInputButterflies},  {19, kOutputButterflies},
    {20, kInputButterflies},  {21, kOutputButterflies}, {22, kOutputButterflies},
    {23, kInputButterflies},  {24, kOutputButterflies}, {25, kInputButterflies},
    {26, kOutputButterflies}, {27, kInputButterflies},  {28, kInputButterflies},
    {29, kOutputButterflies}, {30, kInputButterflies},  {31, kInputButterflies},
    {32, kInputButterflies},  {33, kInputButterflies},  {34, kInputButterflies},
    {35, kInputButterflies},  {36, kInputButterflies},  {37, kInputButterflies},
    {38, kOutputButterflies}, {39, kOutputButterflies}, {40, kInputButterflies},
    {41, kOutputButterflies}, {42, kInputButterflies},  {43, kInputButterflies},
    {44, kInputButterflies},  {45, kInputButterflies},  {46, kInputButterflies},
    {47, kOutputButterflies}, {48, kInputButterflies},  {49, kOutputButterflies},
    {50, kOutputButterflies}, {51, kInputButterflies},  {52, kOutputButterflies},
    {53, kInputButterflies},  {54, kInputButterflies},  {55, kInputButterflies},
    {56, kInputButterflies},  {57, kOutputButterflies}, {58, kOutputButterflies},
    {59, kOutputButterflies}, {60, kInputButterflies},  {61, kOutputButterflies},
    {62, kInputButterflies},  {63, kOutputButterflies}, {64, kInputButterflies},
};

}  // namespace hartley
