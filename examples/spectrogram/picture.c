#include "picture.h"

#include <errno.h>
#include <math.h>
#include <stdlib.h>
#include <string.h>

#include "canvas.h"

/* Pixels. */
enum {
  WIDTH = 1200,
  HEIGHT = 640,
  PLOT_LEFT = 100,
  PLOT_TOP = 52,
  PLOT_WIDTH = 904,
  PLOT_HEIGHT = 536,
  PLOT_RIGHT = PLOT_LEFT + PLOT_WIDTH,
  PLOT_BOTTOM = PLOT_TOP + PLOT_HEIGHT,
  SCALE_LEFT = 1076,
  SCALE_WIDTH = 18,
  SCALE_RIGHT = SCALE_LEFT + SCALE_WIDTH,
  TICK = 6,
  TEXT_GAP = 12,
  LINE = 16
};

static const double kRange = 80;           /* dB from the darkest colour to the brightest */
static const double kLowestFrequency = 50; /* Hz, unless the recording's rate is very low */

static const Colour kBackground = {16, 15, 22};
static const Colour kText = {222, 220, 228};
static const Colour kFaint = {140, 136, 152};

typedef struct Plot {
  const Spectrogram* spectrogram;
  double duration;        /* seconds */
  double lowest, highest; /* Hz */
} Plot;

/* `position` is 0 to 1. The colours are nine samples of matplotlib's "magma" (CC0), whose lightness
 * is even to the eye. */
static Colour colour_of(double position) {
  static const uint8_t kMagma[9][3] = {{0, 0, 4},      {29, 17, 71},    {81, 18, 124},
                                       {130, 38, 129}, {182, 54, 121},  {230, 81, 100},
                                       {251, 136, 97}, {254, 194, 135}, {252, 253, 191}};
  const double scaled = 8 * fmin(fmax(position, 0), 1);
  const int i = fmin(scaled, 7);
  uint8_t mixed[3];
  for (int c = 0; c < 3; ++c)
    mixed[c] = lrint(kMagma[i][c] + (scaled - i) * (kMagma[i + 1][c] - kMagma[i][c]));
  return (Colour){mixed[0], mixed[1], mixed[2]};
}

static double frequency_at(const Plot* plot, double height) {
  return plot->lowest * pow(plot->highest / plot->lowest, height);
}

static int row_of(const Plot* plot, double frequency) {
  const double height = log(frequency / plot->lowest) / log(plot->highest / plot->lowest);
  return PLOT_BOTTOM - 1 - lrint(height * (PLOT_HEIGHT - 1));
}

/* A cubic between bins, so that low tones, which have few bins, come out round. */
static double level_in_frame(const float* levels, double bin) {
  const int k = fmin(bin, FRAME_BINS - 2);
  const double t = bin - k;
  const double before = levels[k > 0 ? k - 1 : 1];
  const double after = levels[k + 2 < FRAME_BINS ? k + 2 : FRAME_BINS - 2];
  const double slope = 0.5 * (levels[k + 1] - before);
  const double next_slope = 0.5 * (after - levels[k]);
  const double rise = levels[k + 1] - levels[k];
  return levels[k] + t * (slope + t * (3 * rise - 2 * slope - next_slope +
                                       t * (slope + next_slope - 2 * rise)));
}

static double level_at(const Spectrogram* spectrogram, double frame, double bin) {
  const size_t last = spectrogram->frame_count - 1;
  const size_t f = fmin(frame, last);
  const float* levels = spectrogram->levels + f * FRAME_BINS;
  const double level = level_in_frame(levels, bin);
  if (f == last) return level;
  return level + (frame - f) * (level_in_frame(levels + FRAME_BINS, bin) - level);
}

/* The strongest level in a pixel: of one point, or of as many as the pixel has frames and bins. */
static double level_in_pixel(const Spectrogram* spectrogram, double frame, double frame_end,
                             double bin, double bin_end) {
  const int frames = ceil(frame_end - frame);
  const int bins = ceil(bin_end - bin);
  double strongest = LEVEL_FLOOR;
  for (int i = 0; i < frames; ++i) {
    const double f = frame + (frame_end - frame) * (i + 0.5) / frames;
    for (int j = 0; j < bins; ++j)
      strongest =
          fmax(strongest, level_at(spectrogram, f, bin + (bin_end - bin) * (j + 0.5) / bins));
  }
  return strongest;
}

static void draw_levels(const Plot* plot, Canvas* canvas) {
  const Spectrogram* spectrogram = plot->spectrogram;
  const double frames = (double)spectrogram->sample_count / FRAME_HOP / PLOT_WIDTH;
  const double bin_width = spectrogram->rate / FRAME_LENGTH;
  for (int y = 0; y < PLOT_HEIGHT; ++y) {
    const double bin = frequency_at(plot, (y - 0.5) / (PLOT_HEIGHT - 1)) / bin_width;
    const double bin_end = frequency_at(plot, (y + 0.5) / (PLOT_HEIGHT - 1)) / bin_width;
    for (int x = 0; x < PLOT_WIDTH; ++x) {
      const double level = level_in_pixel(spectrogram, x * frames, (x + 1) * frames, bin,
                                          fmin(bin_end, FRAME_BINS - 1));
      canvas->pixels[(PLOT_BOTTOM - 1 - y) * WIDTH + PLOT_LEFT + x] = colour_of(1 + level / kRange);
    }
  }
}

/* 1, 2 or 5 times a power of ten: the least such number that is not below `value`. */
static double round_step(double value) {
  const double power = pow(10, floor(log10(value)));
  const double digit = value / power;
  return power * (digit <= 1 ? 1 : digit <= 2 ? 2 : digit <= 5 ? 5 : 10);
}

static void draw_time_axis(const Plot* plot, Canvas* canvas) {
  const double step = round_step(plot->duration / 12);
  for (int i = 0; i * step <= plot->duration; ++i) {
    const int x = PLOT_LEFT + lrint(i * step / plot->duration * (PLOT_WIDTH - 1));
    canvas_fill(canvas, x, PLOT_BOTTOM, 2, TICK, kFaint);
    canvas_text(canvas, x, PLOT_BOTTOM + LINE + 6, 0.5, kText, "%g s", i * step);
  }
}

static void draw_frequency_axis(const Plot* plot, Canvas* canvas) {
  for (double f = round_step(plot->lowest); f <= plot->highest; f = round_step(1.5 * f)) {
    const int y = row_of(plot, f);
    canvas_fill(canvas, PLOT_LEFT - TICK, y, TICK, 2, kFaint);
    canvas_text(canvas, PLOT_LEFT - TEXT_GAP, y, 1, kText, f < 1000 ? "%g Hz" : "%g kHz",
                f < 1000 ? f : f / 1000);
  }
}

/* Names that are clear of those of all stronger tones. */
static void draw_tones(const Plot* plot, const Tone* tones, int count, Canvas* canvas) {
  for (int i = 0; i < count; ++i) {
    const int y = row_of(plot, tones[i].frequency);
    bool is_clear = y >= PLOT_TOP && y < PLOT_BOTTOM;
    for (int j = 0; j < i; ++j)
      is_clear = is_clear && abs(row_of(plot, tones[j].frequency) - y) >= LINE;
    if (!is_clear) continue;
    canvas_fill(canvas, PLOT_RIGHT, y, TICK, 2, kFaint);
    canvas_text(canvas, PLOT_RIGHT + TEXT_GAP, y, 0, kText, "%s",
                nearest_note(tones[i].frequency).name);
  }
}

static void draw_scale(Canvas* canvas) {
  canvas_text(canvas, WIDTH - TEXT_GAP, PLOT_TOP / 2, 1, kText, "0 dB: loudest");
  for (int y = 0; y < PLOT_HEIGHT; ++y) {
    const Colour colour = colour_of((double)y / (PLOT_HEIGHT - 1));
    canvas_fill(canvas, SCALE_LEFT, PLOT_BOTTOM - 1 - y, SCALE_WIDTH, 1, colour);
  }
  for (int level = 0; level >= -kRange; level -= 20) {
    const int y = PLOT_TOP + lrint(-level / kRange * (PLOT_HEIGHT - 1));
    canvas_fill(canvas, SCALE_RIGHT, y, TICK, 2, kFaint);
    canvas_text(canvas, SCALE_RIGHT + TEXT_GAP, y, 0, kText, "%d dB", level);
  }
}

const char* picture_write(const Spectrogram* spectrogram, const Tone* tones, int tone_count,
                          const char* name, const char* path) {
  const double highest = spectrogram->rate / 2;
  const Plot plot = {.spectrogram = spectrogram,
                     .duration = spectrogram->sample_count / spectrogram->rate,
                     .lowest = fmin(kLowestFrequency, highest / 10),
                     .highest = highest};
  Canvas canvas = {WIDTH, HEIGHT, malloc(WIDTH * HEIGHT * sizeof(Colour))};
  if (canvas.pixels == NULL) return "not enough memory";
  canvas_fill(&canvas, 0, 0, WIDTH, HEIGHT, kBackground);
  canvas_text(&canvas, PLOT_LEFT, PLOT_TOP / 2, 0, kText, "%.40s   %.2f s   %.0f Hz", name,
              plot.duration, spectrogram->rate);
  draw_levels(&plot, &canvas);
  draw_time_axis(&plot, &canvas);
  draw_frequency_axis(&plot, &canvas);
  draw_tones(&plot, tones, tone_count, &canvas);
  draw_scale(&canvas);
  const char* problem = canvas_write_png(&canvas, path) ? NULL : strerror(errno);
  free(canvas.pixels);
  return problem;
}
