// Procedure bodies: a function definition of clang's AST as an IR tree that
// holds every symbol reference of the source.
#pragma once

namespace clang {
class ASTContext;
class FunctionDecl;
}
class proc_sym;

// Gives p the body of fd (parameters and locals in the procedure's own
// tables, one block table per compound statement), writes it to p's file
// and frees it again, so that one body at a time stays in memory.
//   direct call f(x)       -> call whose address is a load-constant of f
//   &v, f as a value       -> load-constant of the symbol
//   any other use of v     -> symbol operand v
// REQUIRES: p->file() is set and fd has a body.
void build_body(proc_sym *p, const clang::FunctionDecl *fd, clang::ASTContext &ctx);
