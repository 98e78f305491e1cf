#include "docs/pages/markup.h"
#include "docs/pages/site.h"

namespace pages {
namespace {

struct Term {
  const char* word;  // markup, as the meaning
  const char* meaning;
};

std::string list(const std::vector<Term>& terms) {
  std::string text;
  for (const auto& [word, meaning] : terms) {
    text += std::string("<dt>") + word + "</dt><dd>" + meaning + "</dd>\n";
  }
  return "<dl class=\"terms\">\n" + text + "</dl>\n";
}

// The notation of networks/tree.h, for readers.
const std::vector<Term> kTrees = {
    {"CT(a, b)",
     "Cooley-Tukey: a block of length a · b out of blocks of length a and of length b, with "
     "twiddle "
     "factors between the two stages."},
    {"PFA(a, b)",
     "Prime factor (Good-Thomas): the same for a and b without a common factor; no twiddle "
     "factors."},
    {"2, 3, 4, 5, 7, 11", "A block of that length, written out. 4 is the radix-4 block."},
    {"13, 47i, 11r",
     "A block of prime length in Rader’s form: on real data a convolution of length 12, 46, 10. A "
     "letter tells which recipe of the family’s table it is: i is that of inverse transforms, r is "
     "Rader’s form of a length that has a short form, too; k, t, x and y are further ones."},
    {"Rader(s, t)",
     "A whole complex transform of prime length p in Rader’s form: s is the transform of length p "
     "− "
     "1 that leads there, t the one that leads back."},
    {"chirp(t)",
     "A whole complex transform as a convolution with a chirp (Bluestein), by transforms t of a "
     "convenient length above 2 p. Taken at 47 and 59 in single precision."},
    {"5w", "The short form of 5 on real data, with fewer multiplications."},
    {"4s", "Radix-2 steps with a rotation each."},
    {"3n", "By definition."},
    {"by(s, t, u)",
     "A block of an inverse real transform whose columns are of different kinds: s on those with "
     "real data, t on those with complex data, u on those whose frequencies lie between the bins."},
    {"mirror(t)",
     "The mirror image of t: its data flow read from the outputs to the inputs, sums becoming "
     "copies and copies sums."},
    {"alt(t)", "t on samples with alternating signs."},
    {"Z(t), Zc(t)",
     "A real sequence folded into a complex one of half the length, for t; on real and imaginary "
     "parts by themselves, or on complex values."},
    {"split(s, t)", "Sums of the two halves go through s, differences through t."},
    {"fold(t)", "t with products of products made one constant."},
    {"rows of a, columns b x c",
     "A long Walsh-Hadamard transform: passes along rows, then passes down columns."}};

const std::vector<Term> kOrders = {
    {"bisect 11",
     "Recursive bisection: the statements are cut into two halves that share few values, and so "
     "on; "
     "11 is the variant, which breaks ties its own way."},
    {"live 2",
     "Greedy: next comes the statement that raises the number of live values the least; 2 is the "
     "variant."},
    {"paced 14",
     "Greedy: next comes a statement whose operands have had the time that they take, on the "
     "longest path to a result, as long as registers last; the variant, 14, tells how many "
     "statements a cycle and how many registers are reckoned with."},
    {"live 2 x2", "The same in vectors twice as wide as elsewhere."}};

const std::vector<Term> kFigures = {
    {"Operations",
     "Additions (and subtractions) and multiplications by constants, of real numbers, counted on "
     "the data flow that the code is written from. Equal operations count once; products by 0, 1 "
     "and −1 don’t count, nor does the scaling of the result."},
    {"Error",
     "The L2 norm of the error over the L2 norm of the exact result, taken over many inputs of "
     "uniformly distributed random samples together, in units of the rounding error u: "
     "2<sup>−24</sup> in single precision, 2<sup>−53</sup> in double. The exact result is the "
     "defining sum in quad precision, or for the DCT-IV in the 64-bit precision of long double."},
    {"Cycles",
     "Core cycles of one call on arrays aligned on 16 bytes that are in the nearest cache, out of "
     "place, with <code>ZULG_SCALE_NONE</code>: the lower one of two runs of the benchmark that "
     "agree within 3 %. Where no two runs agree, the figure counts as not measured."},
    {"x86-64, x86-64-v3, i386",
     "The library for 64-bit programs on any processor, the same for processors with AVX2, which "
     "the dynamic loader takes where it can, and the library for 32-bit programs."},
    {"FFTW",
     "FFTW as it is installed, which uses the widest vectors that it knows. Its time is that of "
     "the "
     "best of several plans of <code>FFTW_PATIENT</code>, for the same transform in the same "
     "precision; for real transforms it may choose the order of its packed spectrum."},
    {"FFTW, SSE2", "The same, held to SSE2, as the library for any processor is."},
    {"KissFFT",
     "KissFFT as Debian has it: in single precision alone, complex transforms of every length, "
     "real "
     "ones of even length."},
    {"FFTW / x86-64-v3",
     "FFTW’s time over that of our library; above 1, ours is faster. Means are "
     "geometric."},
    {"What has peers",
     "FFTW has every transform here: all lengths 2 to 64 of the complex, real and Hartley "
     "transforms, Walsh-Hadamard orders 1 to 13, the DCT-IV of the powers of two from 2 to 131072, "
     "which are those that are measured."}};

std::string machine(const Figures& figures) {
  std::string parts;
  for (const auto& [part, what] : figures.machine) {
    parts += "<dt>" + escaped(part) + "</dt><dd>" + escaped(what) + "</dd>\n";
  }
  for (const Architecture& architecture : kArchitectures) {
    const auto table = figures.cycles.find(architecture.name);
    const std::size_t count = table == figures.cycles.end() ? 0 : table->second.size();
    parts += "<dt>measured, " + architecture.name + "</dt><dd>" + std::to_string(count) +
             " functions</dd>\n";
  }
  return "<dl class=\"machine\">\n" + parts + "</dl>\n";
}

}  // namespace

std::string reading_page(const Figures& figures) {
  return page(
      "zulgen: how to read these pages",
      "<h1>How to read these pages</h1>\n"
      "<h2 id=\"trees\">Decompositions</h2>\n"
      "<p>The first argument is the stage that touches the input. An inverse real kernel, "
      "and a Hartley kernel with its butterflies first, is the mirror image of the network "
      "that its tree describes: there the first argument touches the output. Inverse "
      "complex kernels run their tree as forward ones do.</p>\n" +
          list(kTrees) +
          "<h2 id=\"orders\">Orders of statements</h2>\n<p>Which order is fastest was "
          "measured, for each kernel and library.</p>\n" +
          list(kOrders) + "<h2 id=\"figures\">Figures</h2>\n" + list(kFigures) +
          "<h2 id=\"machine\">Where they were measured</h2>\n" + machine(figures) +
          "<p><code>bench/measure.sh BUILD_DIR</code>, run in the sources, takes all "
          "measured figures anew on your machine; the next build puts them on these pages. "
          "<code>zulgen-bench_x86-64 --filter CToC_12_</code> shows a single length.</p>\n");
}

}  // namespace pages
