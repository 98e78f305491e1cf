// The real and Hartley kernels of which every rounding is laid down: leaves, and lengths that are
// put together of two of them.
#include <gtest/gtest.h>

#include <numeric>

#include "tests/graph_runs.h"
#include "tests/scalar_model.h"

namespace {

using namespace scalar_model;

using Values = std::vector<double>;
template <class T>
using Wide = Real<T, double>;

const gen::Kernel& find(const std::string& name) {
  static const std::vector<gen::Kernel> all = generate::all_kernels();
  return *std::find_if(all.begin(), all.end(), [&](const auto& k) { return k.name == name; });
}

template <class R>
std::vector<R> real(const Values& x) {
  std::vector<R> y;
  for (const double v : x) y.push_back({v});
  return y;
}

// Inner transforms of length q on p rows, then outer ones over their bins; coprime, or with
// rotations in between.
Sums<Real<double>> two_stages(int p, int q, const std::vector<Real<double>>& x) {
  using R = Real<double>;
  const int n = p * q;
  const bool coprime = std::gcd(p, q) == 1;
  std::vector<Sums<R>> rows;
  for (int r = 0; r < p; ++r) {
    std::vector<R> row;
    for (int t = 0; t < q; ++t) row.push_back(x[((coprime ? q : 1) * r + p * t) % n]);
    rows.push_back(leaf(row, Order::kFirstSampleLast));
  }
  Sums<R> y = {std::vector<R>(n / 2 + 1), std::vector<R>(n / 2 + 1)};
  const auto set = [&](int a, int b, R cosine_sum, R sine_sum) {
    int k = b + q * a;
    for (k = coprime ? b : k; coprime && k % p != a; k += q) {
    }
    y.p[std::min(k, n - k)] = cosine_sum;
    y.q[std::min(k, n - k)] = 2 * k < n ? sine_sum : R() - sine_sum;
  };
  for (int b = 0; 2 * b <= q; ++b) {
    std::vector<R> bin;
    std::vector<Sample<R>> z;
    for (int r = 0; r < p; ++r) {
      bin.push_back(rows[r].p[b]);
      z.push_back({rows[r].p[b], R() - rows[r].q[b]});
      if (!coprime) z.back() = rotate(z.back(), -r * b, n);
    }
    if (b == 0 || (2 * b == q && coprime)) {
      const Sums<R> outer = leaf(bin, Order::kFirstSampleLast);
      for (int a = 0; 2 * a <= p; ++a) set(a, b, outer.p[a], outer.q[a]);
    } else if (2 * b == q) {
      const R t = cosine(1, 8) * (bin[1] - bin[3]), w = cosine(1, 8) * (bin[1] + bin[3]);
      set(0, b, bin[0] + t, bin[2] + w);
      set(1, b, bin[0] - t, w - bin[2]);
    } else {
      const auto outer = whole(networks::parse_tree(std::to_string(p)), z, 1, kNobody);
      for (int a = 0; a < p; ++a) set(a, b, outer[a].re, R() - outer[a].im);
    }
  }
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
  EXPECT_EQ(GraphRuns(find(name)).run(x, ZULG_SCALE_BY_SQRT_N), y) << name;
}

Values input(const std::string& name) {
  return make_input(GraphRuns(find(name)).shape(), harness::Data::kUniform, 5);
}

// The leaf's sums of products stay double up to the scaled output.
template <class T>
void expect_leaves(const std::string& type) {
  for (const int n : {2, 3, 4, 5, 7, 11}) {
    const T s = static_cast<T>(1 / std::sqrt(n));
    const std::string end = "_" + std::to_string(n) + "_" + type;
    const Values x = input("zulgDFTFwd_RToPack" + end);
    const auto y = leaf(real<Wide<T>>(x), Order::kFirstSampleLast);
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
  const std::pair<int, int> stages[] = {{2, 3},  {2, 5},  {3, 4},  {7, 2},  {5, 3},
                                        {4, 5},  {3, 7},  {11, 2}, {3, 11}, {5, 7},
                                        {4, 11}, {5, 11}, {4, 2},  {3, 3},  {5, 5}};
  for (const auto& [p, q] : stages) {
    const int n = p * q;
    const std::string name = "zulgDFTFwd_RToPack_" + std::to_string(n) + "_64f";
    const Values x = input(name);
    const auto y = two_stages(p, q, real<Real<double>>(x));
    expect_run(name, x, pack<double>(y, n, 1 / std::sqrt(n)));
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
