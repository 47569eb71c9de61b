// Forward declarations of every class of the IR library, so that headers of
// other modules can name IR objects without pulling in the whole library.
#pragma once

class i_integer;
class string_table;
struct string_e;

class glist_e;
class glist;
class glist_iter;
class dlist_e;
class dlist;

class immed;
class annote;
class annote_def;
class suif_object;

class string_list;
class int_list;
class proc_sym_list;
class sym_node_list;
class type_node_list;
class annote_list;
class immed_list;
class tree_node_list;
class var_def_list;
class base_symtab_list;
class file_set_entry_list;
class file_list;

class type_node;
class base_type;
class ptr_type;
class array_type;
class array_bound;
class func_type;
class struct_type;
class enum_type;
class modifier_type;

class sym_node;
class var_sym;
class proc_sym;
class label_sym;
class var_def;

class base_symtab;
class block_symtab;
class proc_symtab;
class global_or_file_symtab;
class global_symtab;
class file_symtab;

class file_set;
class file_set_entry;

class operand;
class instruction;
class in_rrr;
class in_ldc;
class in_bj;
class in_cal;
class in_lab;
class in_gen;

class tree_node;
class tree_instr;
class tree_block;
class tree_proc;
class tree_if;
class tree_loop;

struct coord;
struct machine_params;
