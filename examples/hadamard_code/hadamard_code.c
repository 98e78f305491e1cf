/* hadamard_code: how to decode an error-correcting code by one Walsh-Hadamard transform a word.
 *
 * The first-order Reed-Muller code of length 64: a message of 7 bits is a row of the Hadamard
 * matrix (6 bits) and a sign. Sent as +1 and -1 with Gaussian noise on top, the likeliest word is
 * the transform's output of the largest magnitude.
 *
 * Prints error rates beside uncoded bits, the exact rate and the union bound. Fails if the
 * noiseless spectrum isn't exact or a rate isn't what theory says. */
#include <math.h>
#include <stdint.h>

#include "program.h"
#include "zulgen.h"

enum { ORDER = 6, L = 64, MESSAGE_BITS = 7, MESSAGES = 128, SIGN = 64, WORDS = 20000, MAX_DB = 5 };

static const Program kProgram = {"hadamard_code", "", 0,
                                 "Decodes noisy words by a Walsh-Hadamard transform each."};

static const double kPi = 3.14159265358979323846;

/* splitmix64 by Steele, Lea and Flood. */
static uint64_t next_random(uint64_t* state) {
  uint64_t z = *state += 0x9e3779b97f4a7c15u;
  z = (z ^ z >> 30) * 0xbf58476d1ce4e5b9u;
  z = (z ^ z >> 27) * 0x94d049bb133111ebu;
  return z ^ z >> 31;
}

static double uniform(uint64_t* state) { /* above 0, at most 1 */
  return ((next_random(state) >> 11) + 1) / 9007199254740992.0;
}

/* The method of Box and Muller; its other value is not used. */
static double gaussian(uint64_t* state) {
  const double radius = sqrt(-2 * log(uniform(state)));
  return radius * cos(2 * kPi * uniform(state));
}

static int count_bits(unsigned bits) {
  int count = 0;
  for (; bits != 0; bits >>= 1) count += bits & 1;
  return count;
}

static void encode(unsigned message, zulg32f* word) {
  for (unsigned j = 0; j < L; ++j)
    word[j] = (count_bits(message & j) ^ message / SIGN) & 1 ? -1 : 1;
}

static zulgResult decode(const zulg32f* received, unsigned* message) {
  zulg32f spectrum[L];
  const zulgResult result = zulgWHT_6_32f(received, spectrum, ZULG_SCALE_NONE, NULL);
  if (result != ZULG_OK) return result;
  unsigned row = 0;
  for (unsigned k = 1; k < L; ++k) {
    if (fabsf(spectrum[k]) > fabsf(spectrum[row])) row = k;
  }
  *message = spectrum[row] < 0 ? row + SIGN : row;
  return ZULG_OK;
}

/* Without noise everything is a small integer, so nothing is rounded. */
static int is_exact_without_noise(void) {
  for (unsigned message = 0; message < MESSAGES; ++message) {
    zulg32f word[L];
    unsigned decoded;
    encode(message, word);
    if (decode(word, &decoded) != ZULG_OK || decoded != message) return 0;
    if (zulgWHT_6_32f(word, word, ZULG_SCALE_NONE, NULL) != ZULG_OK) return 0;
    for (unsigned k = 0; k < L; ++k) {
      const zulg32f wanted = k != message % SIGN ? 0 : message < SIGN ? L : -L;
      if (word[k] != wanted) return 0;
    }
  }
  return 1;
}

/* The probability that a standard Gaussian is above x. */
static double upper_tail(double x) { return 0.5 * erfc(x / sqrt(2)); }

/* The probability that the best word is a wrong one. The right output is Gaussian around sqrt(L /
 * sigma^2), in units of its deviation, and the 63 others are independent of it, around 0: right is
 * who has the right sign and is larger than all of these. By the trapezoidal rule, whose error for
 * such an integrand is far below the rates. */
static double exact_word_error_rate(double sigma) {
  const double centre = sqrt(L) / sigma, step = 1.0 / 64;
  double wrong = upper_tail(centre); /* the sign */
  for (double v = step / 2; v < centre + 10; v += step) {
    const double density = exp(-0.5 * (v - centre) * (v - centre)) / sqrt(2 * kPi);
    wrong += step * density * -expm1((L - 1) * log1p(-2 * upper_tail(v)));
  }
  return wrong;
}

/* 126 words differ in 32 places, 1 in all 64. */
static double union_bound(double sigma) {
  return (MESSAGES - 2) * upper_tail(sqrt(L / 2) / sigma) + upper_tail(sqrt(L) / sigma);
}

/* Returns whether the errors are as many as they must be. `db` is the energy of a message's bit
 * over the noise's density. */
static int simulate(int db, uint64_t* random) {
  const double snr = pow(10, db / 10.0);
  const double sigma = sqrt(L / (2.0 * MESSAGE_BITS * snr));
  int word_errors = 0, bit_errors = 0;
  for (int i = 0; i < WORDS; ++i) {
    const unsigned message = next_random(random) % MESSAGES;
    unsigned decoded;
    zulg32f word[L];
    encode(message, word);
    for (int j = 0; j < L; ++j) word[j] += sigma * gaussian(random);
    if (decode(word, &decoded) != ZULG_OK) return 0;
    word_errors += decoded != message;
    bit_errors += count_bits(decoded ^ message);
  }
  const double uncoded = upper_tail(sqrt(2 * snr));
  const double exact = exact_word_error_rate(sigma), bound = union_bound(sigma);
  printf("%3d dB   %.5f   %.5f   %.5f   %.5f   %.5f   %.5f\n", db, uncoded,
         (double)bit_errors / WORDS / MESSAGE_BITS, -expm1(MESSAGE_BITS * log1p(-uncoded)),
         (double)word_errors / WORDS, exact, bound);

  /* The number of errors is binomial: five deviations, and five errors more where they are so few
   * that a deviation says little. A correct program fails in less than one of 10000 seeds, and the
   * seed is fixed. The rounding of the sums can't be seen: it is 10^-6 of the noise. */
  const double allowed = 5 + 5 * sqrt(WORDS * exact * (1 - exact));
  return fabs(word_errors - WORDS * exact) <= allowed && exact <= bound;
}

int main(int argc, char** argv) {
  program_operands(&kProgram, argc, argv);
  if (!is_exact_without_noise())
    return complain(&kProgram, NULL, "a transform of a code word is not exact");
  printf("%d words of %d bits in %d samples at every level of noise\n\n", WORDS, MESSAGE_BITS, L);
  printf("            bit error rate              word error rate\n");
  printf(" Eb/N0   uncoded   decoded   uncoded   decoded     exact     bound\n");
  uint64_t random = 2024;
  int status = 0;
  for (int db = 0; db <= MAX_DB; ++db) {
    if (!simulate(db, &random))
      status = complain(&kProgram, NULL, "at %d dB errors are not as many as theory says", db);
  }
  return program_end(&kProgram, status);
}
