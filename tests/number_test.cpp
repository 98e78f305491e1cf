#include "gen/number.h"

#include <gtest/gtest.h>

namespace {

using gen::Number;
using gen::Quad;

// Products are shared only if equal magnitudes are equal bit for bit.
TEST(Number, EqualMagnitudesAreTheSameConstant) {
  for (int n : {3, 5, 7, 8, 12, 16, 45, 64}) {
    for (int k = 0; k < 2 * n; ++k) {
      const Number c = gen::cos_of_turn(k, n);
      EXPECT_EQ(c, gen::cos_of_turn(-k, n));
      EXPECT_EQ(c, gen::cos_of_turn(k + n, n));
      EXPECT_EQ(c.magnitude(), gen::cos_of_turn(2 * k + n, 2 * n).magnitude());
      EXPECT_EQ(c, gen::sin_of_turn(4 * k + n, 4 * n));
      EXPECT_EQ(c.name(), gen::sin_of_turn(4 * k + n, 4 * n).name());
    }
  }
  EXPECT_EQ(gen::cos_of_turn(1, 8), gen::sin_of_turn(1, 8));
  EXPECT_EQ(gen::cos_of_turn(1, 6), gen::ratio(1, 2));
  EXPECT_EQ(gen::cos_of_turn(1, 2), Number(-1));
  EXPECT_EQ(gen::cos_of_turn(1, 4), Number(0));
  EXPECT_FALSE(Number(0) == -Number(0));
}

TEST(Number, ProductsKeepTheirFactorsNames) {
  const Number product = gen::ratio(-3, 6) * gen::cos_of_turn(1, 12);
  EXPECT_EQ(product.name(), "1/2 * cos 1/12");
  EXPECT_TRUE(product.is_negative());
  EXPECT_EQ(-Number(1) * gen::ratio(2, 3), -gen::ratio(2, 3));
}

TEST(Number, LiteralsReadBackAsTheNearestValue) {
  const Quad value = gen::sin_of_turn(1, 3).value();
  EXPECT_EQ(gen::double_literal(value), "0.8660254037844386");
  EXPECT_EQ(gen::float_literal(value), "0.866025388f");
  EXPECT_EQ(std::stof(gen::float_literal(value)), static_cast<float>(value));
  EXPECT_EQ(gen::float_literal(1), "1.0f");
  EXPECT_EQ(gen::double_literal(-2), "-2.0");
}

}  // namespace
