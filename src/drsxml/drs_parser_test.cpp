// The library alone: what the writer builds, the cursor gives back, and a
// bad file gives nothing.
#include "drsxml/drs_parser.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <vector>

namespace {
std::string temp_path(const char *name) { return testing::TempDir() + name; }

void write_file(const std::string &path, const char *text) {
  FILE *f = fopen(path.c_str(), "wb");
  fputs(text, f);
  fclose(f);
}

// Each element the cursor gives, as "kind name file static line status min max kind".
std::vector<std::string> read_all(const std::string &path) {
  std::vector<std::string> out;
  drs_set_warnings(0);
  drs_set_output_buffer_size(1024);
  drs_read_init(path.c_str());
  while (int kind = drs_get_next_element()) {
    char name[1024], file[1024], min[1024] = "", max[1024] = "";
    int unused, is_static, line, status = 0, sign, size, pointer_kind = -1;
    drs_get_element_coordinates(name, 0, file, 0, &unused, &is_static, &line);
    if (kind == 1)
      status = drs_get_scalar(&sign, &size, min, 0, max, 0);
    else if (kind == 2)
      status = drs_get_pointer(min, 0, max, 0, &pointer_kind);
    else if (kind == 3)
      drs_get_function(&status, 0);
    char text[4096];
    snprintf(text, sizeof text, "%d %s %s %d %d %d %s %s %d", kind, name, file, is_static, line, status, min, max,
             pointer_kind);
    out.push_back(text);
  }
  return out;
}

TEST(DrsParser, WrittenTreeReadsBackFlattened) {
  std::string path = temp_path("drs-written.xml");
  drs_write_init();
  drs_set_file("dir/a.c");
  drs_add_element(1, "count", 3, 0, 0);
  drs_set_element_qualifiers(0, 0, 1, 0, 0);
  drs_set_scalar(0, 32, "int", 3, "min", "max", 6, "", "", 1);
  drs_set_scalar(0, 32, "int", 1, "0", "10", 7, "-5", "20", 0);
  drs_write_up();
  drs_add_element(3, "f", 9, 0, 0);
  drs_set_function(1, 1);
  drs_add_element(2, "#0", 9, 0, 0);
  drs_set_pointer(2, "char *", "0", "max", 6, 1);
  drs_add_element(5, "", 9, 0, 0);
  drs_set_struct(nullptr);
  drs_add_element(1, "x\t<&\"\x01\xff", 9, 0, 0);
  drs_set_scalar(1, 8, "unsigned char", 2, "1", "2", 6, "", "", 0);
  drs_set_file(nullptr);
  drs_add_element(4, "gone", 0, 1, 0);
  drs_add_element(2, "", 0, 1, 0);
  drs_set_pointer(4, "", "min", "max", 7, 0);
  drs_set_file("dir/a.c");
  drs_add_element(3, "g", 12, 0, 0);
  drs_write_end(path.c_str());

  EXPECT_EQ(drs_get_file_version(path.c_str()), DRS_XML_VERSION);
  // Lines are those of the range file, where a warning about an element must point.
  std::vector<std::string> expected = {
      "1 count dir/a.c 1 4 1 0 10 -1",
      "1 count dir/a.c 1 5 7 -5 20 -1",
      "3 f dir/a.c 0 7 1   -1",
      "2 f.#0 dir/a.c 0 8 3 0 max 6",
      "5 f.#0* dir/a.c 0 9 0   -1",
      "1 f.#0*.x\t<&\"\xEF\xBF\xBD\xEF\xBF\xBD dir/a.c 0 10 2 1 2 -1",
      "3 g dir/a.c 0 14 3   -1",
      "4 gone  0 17 0   -1",
      "2 gone  0 18 4 min max 7",
  };
  EXPECT_EQ(read_all(path), expected);
}

TEST(DrsParser, BadFilesGiveNoElement) {
  struct {
    const char *text;
    int version;
  } cases[] = {
      {"<ranges version=\"2\"><file><scalar name=\"a\" mode=\"init\" min=\"0\" max=\"1\"></file></ranges>", 2},
      {"<other version=\"2\"/>", 2},
      {"<ranges version=\"1\"><file><scalar name=\"a\" mode=\"on\" min=\"0\" max=\"1\"/></file></ranges>", 1},
      {"<ranges version=\"2\"><file><scalar name=\"a\" mode=\"init\" min=\"0\"/></file></ranges>", 2},
      {"<!DOCTYPE ranges [<!ENTITY a \"b\">]><ranges version=\"2\"/>", 2},
      {"a 0 10 init\n", 0},
  };
  for (const auto &c : cases) {
    std::string path = temp_path("drs-bad.xml");
    write_file(path, c.text);
    EXPECT_EQ(drs_get_file_version(path.c_str()), c.version) << c.text;
    EXPECT_TRUE(read_all(path).empty()) << c.text;
  }
  EXPECT_EQ(drs_get_file_version(temp_path("drs-missing.xml").c_str()), 0);
}
} // namespace
