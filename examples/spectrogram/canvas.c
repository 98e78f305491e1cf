#include "canvas.h"

#include <errno.h>
#include <stb/stb_easy_font.h>
#include <stb/stb_image_write.h>
#include <stdarg.h>
#include <stdio.h>

enum { TEXT_SCALE = 2, CAPITAL_HEIGHT = 7 };

static int clamp(int value, int least, int most) {
  return value < least ? least : value > most ? most : value;
}

void canvas_fill(Canvas* canvas, int x, int y, int width, int height, Colour colour) {
  const int right = clamp(x + width, 0, canvas->width);
  const int bottom = clamp(y + height, 0, canvas->height);
  for (int row = clamp(y, 0, bottom); row < bottom; ++row) {
    Colour* pixels = canvas->pixels + row * canvas->width;
    for (int column = clamp(x, 0, right); column < right; ++column) pixels[column] = colour;
  }
}

/* The font has no other characters, and indexes its tables with what it gets. */
static void make_printable(char* text) {
  char* end = text;
  for (const char* c = text; *c != '\0'; ++c) {
    if ((*c & 0xc0) == 0x80) continue; /* a UTF-8 character's second and later bytes */
    *end++ = *c >= ' ' && *c <= '~' ? *c : '?';
  }
  *end = '\0';
}

void canvas_text(Canvas* canvas, int x, int y, double anchor, Colour colour, const char* format,
                 ...) {
  char text[80];
  va_list arguments;
  va_start(arguments, format);
  vsnprintf(text, sizeof text, format, arguments);
  va_end(arguments);
  make_printable(text);

  /* The font yields strokes as rectangles: four corners clockwise from the upper left. */
  struct {
    float x, y, z;
    unsigned char colour[4];
  } strokes[20 * sizeof text][4];
  const int left = x - anchor * TEXT_SCALE * stb_easy_font_width(text);
  const int top = y - TEXT_SCALE * CAPITAL_HEIGHT / 2;
  const int count = stb_easy_font_print(0, 0, text, NULL, strokes, sizeof strokes);
  for (int i = 0; i < count; ++i) {
    const int stroke_x = strokes[i][0].x, width = strokes[i][2].x - strokes[i][0].x;
    const int stroke_y = strokes[i][0].y, height = strokes[i][2].y - strokes[i][0].y;
    canvas_fill(canvas, left + TEXT_SCALE * stroke_x, top + TEXT_SCALE * stroke_y,
                TEXT_SCALE * width, TEXT_SCALE * height, colour);
  }
}

static void write_part(void* file, void* data, int size) { fwrite(data, 1, size, file); }

bool canvas_write_png(const Canvas* canvas, const char* path) {
  FILE* file = fopen(path, "wb");
  if (file == NULL) return false;
  errno = ENOMEM; /* the only failure that is not of the file */
  const bool is_encoded = stbi_write_png_to_func(write_part, file, canvas->width, canvas->height, 3,
                                                 canvas->pixels, canvas->width * sizeof(Colour));
  const bool is_written = is_encoded && !ferror(file);
  return fclose(file) == 0 && is_written;
}
