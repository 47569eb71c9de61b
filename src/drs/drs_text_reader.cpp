// The plain range file: one entry a line, "name min max mode [pointer]".
//
// The reader only splits and classifies text; symbols are looked up later by
// binding. Fields are separated by any run of blanks, tabs, commas,
// semicolons and line ends. A line is read through a fixed buffer, so a line
// longer than the buffer goes on as a line of its own; a NUL byte ends what is
// seen of a line. Every bad line is reported and dropped, and reading goes on.
#include "drs/drs_model.h"
#include "driver/options.h"

#include <cstdio>
#include <cstring>
#include <sys/stat.h>

static const char separators[] = "\n ,;\t\r";

// A directory opens for reading on some systems and then gives no line: it is
// refused as a file that can't be read.
static FILE *open_range_file(const char *path) {
  FILE *file = path ? fopen(path, "rb") : nullptr;
  struct stat info;
  if (file && fstat(fileno(file), &info) == 0 && S_ISDIR(info.st_mode)) {
    fclose(file);
    file = nullptr;
  }
  return file;
}

static void read_line(char *line, int number) {
  char *saved = nullptr;
  char *name = strtok_r(line, separators, &saved);
  if (!name || name[0] == '#')
    return;
  char *min = strtok_r(nullptr, separators, &saved);
  char *max = strtok_r(nullptr, separators, &saved);
  char *mode_word = strtok_r(nullptr, separators, &saved);
  unsigned pointer_kind = drs_pointer_kind_of(strtok_r(nullptr, separators, &saved));
  if (!min || !max || !mode_word) {
    drs_warn(number, "data-range-specifications: incomplete line. expected format is variable-name min max mode");
    return;
  }
  unsigned mode = drs_mode_of_word(mode_word);
  if (mode == DRS_MODE_UNKNOWN) {
    drs_warn(number, "data-range-specifications: unknown mode '%s'. valid modes are init, permanent or globalassert",
             mode_word);
    return;
  }
  // Binding rewrites the first copy; the template export sees the entry as written.
  drs_read_entries->push_back(drs_new_entry(mode, name, min, max, number, pointer_kind));
  drs_template_entries->push_back(drs_new_entry(mode, name, min, max, number, pointer_kind));
}

void drs_read_text_file() {
  FILE *file = open_range_file(drs_file_path);
  if (!file) {
    if (!flag_no_warnings_for_drs) {
      warning_line(nullptr, "data-range-specifications: file '%s' access fails", drs_file_path ? drs_file_path : "");
      checked_fflush(stderr);
    }
    return;
  }
  char line[2048];
  int number = 0;
  while (fgets(line, sizeof line, file)) {
    ++number;
    read_line(line, number);
  }
  checked_fclose(file);
}
