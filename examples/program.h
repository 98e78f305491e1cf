/* What all examples have in common: how they read the command line, report errors and end.
 *
 * They end with 0; with 1 if a check fails, or a file or memory is missing; with 2 if the command
 * line is wrong. A problem is one line on the standard error: program, what it is about, what is
 * wrong. */
#ifndef EXAMPLES_PROGRAM_H
#define EXAMPLES_PROGRAM_H

#include <errno.h>
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

enum { EXIT_USAGE = 2, ANY_NUMBER = -1 };

typedef struct Program {
  const char* name;
  const char* operands; /* for the line of usage */
  int operand_limit;    /* or ANY_NUMBER */
  const char* purpose;
} Program;

/* Returns the operands, with a null pointer behind them. Ends the program after --help, and if
 * there are options, which no example has, or too many operands. Behind -- everything is an
 * operand. */
static inline char** program_operands(const Program* program, int argc, char** argv) {
  int count = 0, options_end = 0;
  for (int i = 1; i < argc; ++i) {
    const char* text = argv[i];
    const int is_option =
        !options_end && text[0] == '-' && text[1] != '\0' && strchr("0123456789", text[1]) == NULL;
    if (is_option && strcmp(text, "--") == 0) {
      options_end = 1;
    } else if (is_option && strcmp(text, "--help") == 0) {
      printf("usage: %s %s\n%s\n", program->name, program->operands, program->purpose);
      exit(EXIT_SUCCESS);
    } else if (is_option || count == program->operand_limit) {
      fprintf(stderr, "%s: %s: %s\nusage: %s %s\n", program->name, text,
              is_option ? "no such option" : "one operand too many", program->name,
              program->operands);
      exit(EXIT_USAGE);
    } else {
      argv[count++] = argv[i];
    }
  }
  argv[count] = NULL;
  return argv;
}

/* Reports a problem, by printf's rules; with a null pointer, of nothing in particular. */
__attribute__((format(printf, 3, 4))) static inline int complain(const Program* program,
                                                                 const char* subject,
                                                                 const char* format, ...) {
  va_list arguments;
  fprintf(stderr, subject != NULL ? "%s: %s: " : "%s: ", program->name, subject);
  va_start(arguments, format);
  vfprintf(stderr, format, arguments);
  va_end(arguments);
  fputc('\n', stderr);
  return EXIT_FAILURE;
}

/* What main() returns: the status, or failure if what was printed could not be written. */
static inline int program_end(const Program* program, int status) {
  if (fflush(stdout) != 0) return complain(program, "output", "%s", strerror(errno));
  return status;
}

#endif
