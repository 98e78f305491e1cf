/* spectrogram: what a recording is made of, by transforms of 64 and 32 points.
 *
 *   spectrogram [recording.wav [picture.png]]
 *
 * Reads a WAV recording, prints its strongest tones and writes a picture of its spectrogram. Checks
 * that every frame's transform keeps the energy and can be undone. Exits with 0; with 1 if a file
 * is missing or broken or a check fails; with 2 if the command line is wrong. */
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "picture.h"
#include "spectrogram.h"
#include "tones.h"
#include "wav.h"

enum { EXIT_USAGE = 2, TONE_LIMIT = 8 };

static int complain(const char* subject, const char* problem) {
  fprintf(stderr, "spectrogram: %s: %s\n", subject, problem);
  return EXIT_FAILURE;
}

static void print_recording(const char* name, const Recording* recording) {
  printf("%s: %.2f s, %.0f Hz, %d channel%s of %d-bit %s\n", name,
         recording->count / recording->rate, recording->rate, recording->channels,
         recording->channels == 1 ? "" : "s", recording->bits,
         recording->is_float ? "float" : "PCM");
}

static void print_tones(const Tone* tones, int count) {
  printf(count > 0 ? "\nStrongest tones\n" : "\nThere are no tones in it.\n");
  for (int i = 0; i < count; ++i) {
    const Note note = nearest_note(tones[i].frequency);
    printf("%10.2f Hz %7.1f dB   %-3s %+4ld cents\n", tones[i].frequency, tones[i].level, note.name,
           lrint(note.cents));
  }
}

/* Prints the worst errors and returns whether all of them are as small as they have to be. */
static bool report_checks(const Spectrogram* spectrogram) {
  const SpectrogramErrors worst = spectrogram->worst;
  printf("Frames of %d samples, %d apart: %zu. Worst relative errors of any, times 2^24:\n",
         FRAME_LENGTH, FRAME_HOP, spectrogram->frame_count);
  printf("  norm of the frame by its spectrum (Parseval)  %6.3f   allowed %4.1f\n", worst.parseval,
         kAllowedErrors.parseval);
  printf("  forward and inverse against the frame         %6.3f   allowed %4.1f\n",
         worst.round_trip, kAllowedErrors.round_trip);
  return worst.parseval <= kAllowedErrors.parseval && worst.round_trip <= kAllowedErrors.round_trip;
}

static int analyse(const Recording* recording, const char* path, const char* picture_path,
                   Spectrogram* spectrogram) {
  const char* slash = strrchr(path, '/');
  const char* name = slash != NULL ? slash + 1 : path;
  print_recording(name, recording);
  if (recording->is_cut_short) complain(path, "it ends early; using what is there");

  const char* problem =
      spectrogram_compute(recording->samples, recording->count, recording->rate, spectrogram);
  if (problem != NULL) return complain(path, problem);
  if (!report_checks(spectrogram))
    return complain(path, "a transform is not as exact as it must be");

  Tone tones[TONE_LIMIT];
  const int tone_count = find_tones(spectrogram, tones, TONE_LIMIT);
  print_tones(tones, tone_count);

  problem = picture_write(spectrogram, tones, tone_count, name, picture_path);
  if (problem != NULL) return complain(picture_path, problem);
  printf("\nSpectrogram: %s\n", picture_path);
  return EXIT_SUCCESS;
}

int main(int argc, char** argv) {
  if (argc > 3 || (argc > 1 && argv[1][0] == '-')) {
    fprintf(stderr, "usage: spectrogram [recording.wav [picture.png]]\n");
    return EXIT_USAGE;
  }
  const char* path = argc > 1 ? argv[1] : DEFAULT_RECORDING;
  const char* picture_path = argc > 2 ? argv[2] : "spectrogram.png";
  printf("%s, %s\n", zulgenGetLibVersion()->name, zulgenGetLibVersion()->version);

  Recording recording;
  if (!wav_read(path, &recording)) return complain(path, recording.problem);
  Spectrogram spectrogram;
  const int status = analyse(&recording, path, picture_path, &spectrogram);
  free(spectrogram.levels);
  free(recording.samples);
  return status;
}
