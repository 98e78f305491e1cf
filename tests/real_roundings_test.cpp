// The real and Hartley kernels of which every rounding is laid down: leaves, and lengths that are
// put together of two of them.
#include <gtest/gtest.h>

#include "tests/graph_runs.h"
#include "tests/scalar_model.h"

namespace {

using namespace scalar_model;

using Values = std::vector<double>;
template <class T>
using Wide = Real<T, double>;

template <class R>
std::vector<R> real(const Values& x) {
  std::vector<R> y;
  for (const double v : x) y.push_back({v});
  return y;
}

// A spectrum as it is packed, real parts and imaginary parts; scaled, and then rounded to T.
template <class T, class R>
Values pack(const Sums<R>& y, int n, double s) {
  Values result;
  for (int k = 0; 2 * k <= n; ++k) {
    result.push_back(static_cast<T>(s * y.p[k].v));
    if (k != 0 && 2 * k != n) result.push_back(static_cast<T>(-s * y.q[k].v));
  }
  return result;
}

void expect_run(const std::string& name, const Values& x, const Values& y) {
  EXPECT_EQ(runs_of(name).run(x, ZULG_SCALE_BY_SQRT_N), y) << name;
}

Values input(const std::string& name) {
  return make_input(runs_of(name).shape(), harness::Data::kUniform, 5);
}

// The leaf's sums of products stay double up to the scaled output.
template <class T>
void expect_leaves(const std::string& type) {
  for (const int n : {2, 3, 4, 5, 7, 11}) {
    const T s = static_cast<T>(1 / std::sqrt(n));
    const std::string end = "_" + std::to_string(n) + "_" + type;
    const Values x = input("zulgDFTFwd_RToPack" + end);
    const auto y = leaf(real<Wide<T>>(x), Form::kFirstSampleLast);
    expect_run("zulgDFTFwd_RToPack" + end, x, pack<T>(y, n, s));
    Values h(n);
    for (int k = 0; 2 * k <= n; ++k) {
      const Wide<T> re = narrow(y.p[k]), im = narrow(y.q[k]);
      h[(n - k) % n] = static_cast<T>(s * (re - im).v);
      h[k] = static_cast<T>(s * (re + im).v);
    }
    expect_run("zulgHartley" + end, x, h);
  }
}

TEST(RealRoundings, OfForwardLeaves) {
  expect_leaves<float>("32f");
  expect_leaves<double>("64f");
}

TEST(RealRoundings, OfTwoStages) {
  for (const char* text : {"PFA(3, 2)", "PFA(5, 2)", "PFA(4, 3)", "PFA(2, 7)", "PFA(3, 5)",
                           "PFA(5, 4)", "PFA(7, 3)", "PFA(2, 11)", "PFA(11, 3)", "PFA(7, 5)",
                           "PFA(11, 4)", "PFA(11, 5)", "CT(2, 4)", "CT(3, 3)", "CT(5, 5)"}) {
    const Tree tree = networks::parse_tree(text);
    const std::string name = "zulgDFTFwd_RToPack_" + std::to_string(tree.length) + "_64f";
    const Values x = input(name);
    const auto y = halves(tree, real<Real<double>>(x), 1, Form::kFirstSampleLast, kNobody);
    expect_run(name, x, pack<double>(y, tree.length, 1 / std::sqrt(tree.length)));
  }
}

// Every element of a bin twice; an imaginary part with one product alone has the 2 in its constant.
// Sums are the mirror image of the forward ones: the last bin first, Re X[0] at the end.
template <class T>
void expect_inverse_leaves(const std::string& type) {
  using R = Wide<T>;
  for (const int n : {2, 3, 4, 5, 7}) {
    const T s = static_cast<T>(1 / std::sqrt(n));
    const int h = (n - 1) / 2;
    const std::string name = "zulgDFTInv_PackToR_" + std::to_string(n) + "_" + type;
    const Values source = input(name);
    std::vector<R> re = {{source[0]}}, im(1), y(n);
    for (int k = 1; k <= h; ++k) {
      re.push_back({2 * source[2 * k - 1]});
      im.push_back({2 * source[2 * k]});
    }
    if (n % 2 == 0) {
      const R last = {source[n - 1]};
      const R p = re[0] + last, d = re[0] - last;
      y = n == 2 ? std::vector<R>{p, d}
                 : std::vector<R>{p + re[1], d - im[1], p - re[1], d + im[1]};
    } else {
      R sum = re[h];
      for (int k = h - 1; k > 0; --k) sum = sum + re[k];
      y[0] = sum + re[0];
      for (int j = 1; j <= h; ++j) {
        R p = cosine(j * h, n) * re[h], q = sine(j * h, n) * im[h];
        if (n == 3) q = 2 * sine(j, n) * R{source[2]};
        for (int k = h - 1; k > 0; --k) {
          p = p + cosine(j * k, n) * re[k];
          q = q + sine(j * k, n) * im[k];
        }
        p = p + re[0];
        y[j] = narrow(p) - narrow(q);
        y[n - j] = narrow(p) + narrow(q);
      }
    }
    Values scaled;
    for (const R v : y) scaled.push_back(static_cast<T>(s * v.v));
    expect_run(name, source, scaled);
  }
}

TEST(RealRoundings, OfInverseLeaves) {
  expect_inverse_leaves<float>("32f");
  expect_inverse_leaves<double>("64f");
}

}  // namespace
