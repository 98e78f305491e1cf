/* any_length: how to call a kernel whose length is known at run time only.
 *
 *   any_length [length...]
 *
 * Takes the transform of one tone at every length and finds its peak. At some lengths the tone
 * falls on a bin, and has all of its level there. A length that has no kernel is no accident: the
 * entry says so and writes nothing.
 *
 * Fails if a result code, a peak or a level isn't what it must be. */
#include <math.h>

#include "program.h"
#include "zulgen.h"

enum { SHORTEST = 2, LONGEST = 64 };

static const Program kProgram = {"any_length", "[length...]", ANY_NUMBER,
                                 "Finds a tone by transforms of these lengths."};

static const double kPi = 3.14159265358979323846;
static const double kRate = 1e6;
static const double kTone = 50e3;
static const zulg32f kUntouched = -7; /* no level of a bin */

static double level(zulg32fc bin) { return hypot(bin.re, bin.im); }

/* The level at an offset, in bins, from the tone: the Dirichlet kernel. */
static double dirichlet(double offset, int length) {
  const double sine = sin(kPi * offset / length);
  return sine == 0 ? 1 : fabs(sin(kPi * offset) / (length * sine));
}

static int find_peak(const zulg32fc* spectrum, int length) {
  int peak = 0;
  for (int k = 1; k < length; ++k) {
    if (level(spectrum[k]) > level(spectrum[peak])) peak = k;
  }
  return peak;
}

static int is_untouched(const zulg32fc* spectrum) {
  for (int k = 0; k < LONGEST; ++k) {
    if (spectrum[k].re != kUntouched || spectrum[k].im != kUntouched) return 0;
  }
  return 1;
}

/* Returns whether all is as it must be. */
static int try_length(const zulg32fc* tone, int length) {
  zulg32fc spectrum[LONGEST];
  for (int k = 0; k < LONGEST; ++k) spectrum[k].re = spectrum[k].im = kUntouched;

  const zulgResult result = zulgDFTFwd_CToC_32fc(tone, spectrum, length, ZULG_SCALE_FWD_BY_N);
  if (result == ZULG_ERR_SIZE) {
    printf("%6d   no kernel of that length (ZULG_ERR_SIZE, %d)\n", length, result);
    return (length < SHORTEST || length > LONGEST) && is_untouched(spectrum);
  }
  if (result != ZULG_OK || length < SHORTEST || length > LONGEST) return 0;

  const int peak = find_peak(spectrum, length);
  const double place = kTone / kRate * length; /* in bins */
  const double wanted = dirichlet(peak - place, length);
  printf("%6d   %4d   %8.2f kHz   %7.3f dB\n", length, peak, peak * kRate / length / 1e3,
         20 * log10(level(spectrum[peak])));

  /* Under 1/N a tone of amplitude 1 has a spectrum of norm 1. The measured error of the
   * dearest lengths is 2.9 u of that; 16 u leave room for one tone instead of random data, and for
   * the rounding of the tone itself (1 u). Half a bin off, two neighbours are equal but for that.
   */
  const double allowed = 16.0 / (1 << 24);
  return fabs(peak - place) <= 0.5 + 1e-4 && fabs(level(spectrum[peak]) - wanted) <= allowed;
}

/* Returns whether the text is a number that fits an int. */
static int parse_length(const char* text, int* length) {
  char* end;
  errno = 0;
  const long value = strtol(text, &end, 10);
  if (end == text || *end != '\0' || errno != 0 || value != (int)value) return 0;
  *length = value;
  return 1;
}

int main(int argc, char** argv) {
  static const char* const kLengths[] = {"7",  "8",  "13", "20", "32", "37", "40",
                                         "50", "60", "64", "1",  "65", NULL};
  const char* const* texts = (const char* const*)program_operands(&kProgram, argc, argv);
  if (texts[0] == NULL) texts = kLengths;
  zulg32fc tone[LONGEST];
  for (int n = 0; n < LONGEST; ++n) {
    tone[n].re = cos(2 * kPi * kTone / kRate * n);
    tone[n].im = sin(2 * kPi * kTone / kRate * n);
  }

  printf("a tone of %.0f kHz, sampled at %.0f kHz\nlength   peak      frequency         level\n",
         kTone / 1e3, kRate / 1e3);
  int status = 0;
  for (; *texts != NULL; ++texts) {
    int length;
    if (!parse_length(*texts, &length)) {
      complain(&kProgram, *texts, "not a length");
      return EXIT_USAGE;
    }
    if (!try_length(tone, length)) status = complain(&kProgram, *texts, "not as it must be");
  }
  return program_end(&kProgram, status);
}
