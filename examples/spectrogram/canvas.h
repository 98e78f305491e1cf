/* A picture in memory: filled rectangles, text, and writing it to a PNG file. */
#ifndef EXAMPLES_CANVAS_H
#define EXAMPLES_CANVAS_H

#include <stdbool.h>
#include <stdint.h>

typedef struct Colour {
  uint8_t red, green, blue;
} Colour;

typedef struct Canvas {
  int width, height;
  Colour* pixels; /* row by row from the top */
} Canvas;

/* What lies outside the canvas is cut off. */
void canvas_fill(Canvas* canvas, int x, int y, int width, int height, Colour colour);

/* One line of text by printf's rules, its middle at y. It starts at x (anchor 0), is centred there
 * (0.5) or ends there (1). Characters other than printable ASCII come out as question marks. */
void canvas_text(Canvas* canvas, int x, int y, double anchor, Colour colour, const char* format,
                 ...) __attribute__((format(printf, 6, 7)));

/* Returns whether the file was written; if not, errno tells why. */
bool canvas_write_png(const Canvas* canvas, const char* path);

#endif
