// The notation of the tables' rows, and what is checked of them.
#include <gtest/gtest.h>

#include "dft_complex/dft_complex.h"
#include "networks/row_checks.h"

namespace {

TEST(Tree, ParsesAndPrints) {
  for (const char* text : {"7", "11r", "CT(4, 2)", "PFA(2, CT(3, 3))", "alt(PFA(5w, 3))", "Zc(9)",
                           "split(PFA(3, 2), Z(3))", "Rader(PFA(2, 3), 6)", "chirp(CT(4, 4s))"}) {
    EXPECT_EQ(to_string(networks::parse_tree(text)), text);
  }
  EXPECT_EQ(networks::parse_tree("CT(CT(4, 2), PFA(5, 3))").length, 120);
  EXPECT_EQ(networks::parse_tree("split(PFA(3, 2), Z(3))").length, 12);
  EXPECT_EQ(networks::parse_tree("Rader(PFA(2, 3), 6)").length, 7);
  for (const char* text : {"", "1", "CT(4,2)", "CT(4, 2", "PFA(4, 6)", "CT(4, 2) ", "XT(2, 2)",
                           "split(3, 4)", "Rader(6, 4)", "alt(3, 3)"}) {
    EXPECT_THROW(networks::parse_tree(text), std::invalid_argument) << text;
  }
}

// What a table must not hold, and that it is told where.
TEST(Rows, AreChecked) {
  const networks::RaderTable& leaves = dft_complex::rader_64fc();
  const auto refusal = [&](const char* text, int length) -> std::string {
    try {
      networks::tree_of_row({"table.cpp", length}, text, leaves);
    } catch (const std::invalid_argument& error) {
      return error.what();
    }
    return "";
  };
  EXPECT_EQ(refusal("PFA(5w, 7r)", 35), "");
  EXPECT_EQ(refusal("chirp(CT(4, 4))", 7), "");
  const std::pair<const char*, int> wrong[] = {{"CT(3, 4)", 9},
                                               {"CT(3, 3", 9},
                                               {"PFA(5q, 2)", 10},
                                               {"6", 6},
                                               {"13z", 13},
                                               {"chirp(CT(4, 4))", 11},
                                               {"Rader(CT(2, 4), CT(2, 4))", 9}};
  for (const auto& [text, length] : wrong) {
    EXPECT_TRUE(refusal(text, length).starts_with("table.cpp, length " + std::to_string(length)))
        << text << ": " << refusal(text, length);
  }
  const auto table = [](const networks::RaderTable::Row& row) {
    return networks::RaderTable("table.cpp", {row});
  };
  EXPECT_NO_THROW(table({"13", "PFA(3, 4)", "PFA(3, 2)", "CT(3, 2)"}));
  for (const networks::RaderTable::Row& row :
       {networks::RaderTable::Row{"13", "PFA(3, 5)", "PFA(3, 2)", "CT(3, 2)"},
        {"13", "PFA(3, 4)", "PFA(3, 2)", "CT(3, 2q)"},
        {"13", "PFA(3, 4)", "PFA(3, 2)", ""},
        {"15", "PFA(7, 2)", "7", "7"}}) {
    EXPECT_THROW(table(row), std::invalid_argument) << row.leaf << " " << row.odd;
  }
  EXPECT_THROW(networks::smallest_primitive_root(9), std::invalid_argument);
}

}  // namespace
