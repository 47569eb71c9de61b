/* The range file in XML: a cursor that reads it and a tree that writes it.
 *
 * The file is the template of all that a user can give a range for, nested as
 * the C objects are (file, then globals and functions, then fields, targets,
 * elements, parameters); its vocabulary stands in drs.xsd. The reader hands
 * the tree out flattened, one element at a time, each with its full name
 * ("s.x", "p*", "f.#0", "f.return"). The writer builds a tree through calls
 * that open an element, fill it and close it. C linkage, plain global state:
 * one file is read or written at a time. */
#ifndef QVT_DRSXML_DRS_PARSER_H
#define QVT_DRSXML_DRS_PARSER_H

#ifdef __cplusplus
extern "C" {
#endif

/* Element kinds, as the cursor returns them and drs_add_element takes them. */
enum {
  DRS_ELEMENT_NONE = 0, /* end of the file, on reading only */
  DRS_ELEMENT_SCALAR = 1,
  DRS_ELEMENT_POINTER = 2,
  DRS_ELEMENT_FUNCTION = 3,
  DRS_ELEMENT_ARRAY = 4,
  DRS_ELEMENT_STRUCT = 5
};

/* The version that the writer puts on its files. */
#define DRS_XML_VERSION 2

/* Reading. */

/* 0 if path is not an XML range file (a text range file, or unreadable);
 * otherwise the version of its format. A file whose first character, past
 * blanks, is '<' is taken as XML, so that a broken one is reported as such. */
int drs_get_file_version(const char *path);
/* Whether the reader prints its own complaint about a bad file (1) or not (0). */
void drs_set_warnings(int on);
/* The size of the buffers that the getters fill when their size argument is 0. */
void drs_set_output_buffer_size(int size);
/* Parses and checks path against the schema. A bad file gets one warning
 * naming its line and what is wrong, and the cursor then has no element. */
void drs_read_init(const char *path);
/* Moves to the next element and returns its kind, 0 at the end. An element
 * with both a range and an assert range comes twice, the assert second. */
int drs_get_next_element(void);
/* Of the current element: its full name, its source file, whether it stands
 * for a file-local symbol, and its line. */
void drs_get_element_coordinates(char *name, int name_size, char *file, int file_size, int *unused,
                                 int *is_static, int *line);
/* Of the current scalar: status (0 off, 1 init, 2 permanent, 7 globalassert,
 * 3 default), sign and size as written, and the two bounds. */
int drs_get_scalar(int *sign, int *size, char *min, int min_size, char *max, int max_size);
/* Of the current pointer: status (as for a scalar, and 4 written), bounds and
 * pointer kind. */
int drs_get_pointer(char *min, int min_size, char *max, int max_size, int *pointer_kind);
/* Of the current function: *status 0 not called, 1 called, 3 not said. */
int drs_get_function(int *status, int reserved);

/* Writing. */

/* Starts an empty tree; forgets the previous one. */
void drs_write_init(void);
/* The function through which the writer decodes the file names it is given. */
void drs_set_decode_func(const char *(*decode)(const char *));
/* Makes the level of this source file current (null: ranges without a file). */
void drs_set_file(const char *file);
/* Opens a child of the current element, which it becomes. flag 1: the element
 * has no counterpart in the program. */
void drs_add_element(int kind, const char *name, int line, int flag, int reserved);
/* volatile, extern (for a function: not defined), static, const, dead. */
void drs_set_element_qualifiers(int is_volatile, int is_extern, int is_static, int is_const, int is_dead);
/* sign 0 signed, 1 unsigned, 2 float, -1 none; init_status 0 off, 1 init,
 * 2 permanent, 3 default; assert_status 7 with a globalassert range, 6 none.
 * is_default 1 gives the stubber's own values, which a later call with 0
 * (the user's) replaces. */
void drs_set_scalar(int sign, int size, const char *type_name, int init_status, const char *min,
                    const char *max, int assert_status, const char *assert_min, const char *assert_max,
                    int is_default);
void drs_set_pointer(int init_status, const char *type_name, const char *min, const char *max, int pointer_kind,
                     int is_default);
void drs_set_pointer_init_allocated_write(int value);
void drs_set_array(const char *type_name);
void drs_set_struct(const char *type_name);
/* status 0 not called, 1 called, anything else not said. */
void drs_set_function(int status, int flag);
/* Closes the current element; its parent becomes current. */
void drs_write_up(void);
/* Writes the tree to path; a file that can't be written gets an error line. */
void drs_write_end(const char *path);

#ifdef __cplusplus
}
#endif

#endif
