/* spectrogram: what a recording is made of, by transforms of 64 and 32 points.
 *
 *   spectrogram [recording.wav [picture.png]]
 *
 * Reads a WAV recording, prints its strongest tones and writes a picture of its spectrogram. Checks
 * that every frame's transform keeps the energy and can be undone. */
#include <math.h>

#include "picture.h"
#include "program.h"
#include "spectrogram.h"
#include "tones.h"
#include "wav.h"

enum { TONE_LIMIT = 8 };

static const Program kProgram = {"spectrogram", "[recording.wav [picture.png]]", 2,
                                 "Prints the strongest tones and draws the spectrogram."};

static void print_recording(const char* name, const Recording* recording) {
  printf("%s: %.2f s, %.0f Hz, %d channel%s of %d-bit %s\n", name,
         recording->count / recording->rate, recording->rate, recording->channels,
         recording->channels == 1 ? "" : "s", recording->bits,
         recording->is_float ? "float" : "PCM");
}

static void print_tones(const Tone* tones, int count, double bin_width) {
  if (count == 0) {
    printf("\nNo tone stands out in it.\n");
    return;
  }
  printf("\nStrongest tones, from bins of %.1f Hz; 0 dB is a sine of full scale\n", bin_width);
  for (int i = 0; i < count; ++i) {
    const Note note = nearest_note(tones[i].frequency);
    printf("%10.1f Hz %7.1f dB   %-3s %+4ld cents\n", tones[i].frequency, tones[i].level, note.name,
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
  if (recording->remark[0] != '\0') complain(&kProgram, path, "%s", recording->remark);

  const char* problem =
      spectrogram_compute(recording->samples, recording->count, recording->rate, spectrogram);
  if (problem != NULL) return complain(&kProgram, path, "%s", problem);
  if (!report_checks(spectrogram))
    return complain(&kProgram, path, "a transform is not as exact as it must be");

  Tone tones[TONE_LIMIT];
  const int tone_count = find_tones(spectrogram, tones, TONE_LIMIT);
  print_tones(tones, tone_count, recording->rate / FRAME_LENGTH);

  problem = picture_write(spectrogram, tones, tone_count, name, picture_path);
  if (problem != NULL) return complain(&kProgram, picture_path, "%s", problem);
  printf("\nSpectrogram: %s\n", picture_path);
  return EXIT_SUCCESS;
}

int main(int argc, char** argv) {
  char** operands = program_operands(&kProgram, argc, argv);
  const char* path = operands[0] != NULL ? operands[0] : DEFAULT_RECORDING;
  const char* picture_path =
      operands[0] != NULL && operands[1] != NULL ? operands[1] : "spectrogram.png";
  printf("%s, %s\n", zulgenGetLibVersion()->name, zulgenGetLibVersion()->version);

  Recording recording;
  if (!wav_read(path, &recording)) return complain(&kProgram, path, "%s", recording.problem);
  Spectrogram spectrogram;
  const int status = analyse(&recording, path, picture_path, &spectrogram);
  free(spectrogram.levels);
  free(recording.samples);
  return program_end(&kProgram, status);
}
