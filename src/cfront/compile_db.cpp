// The database is read by clang's own reader, which knows the quoting rules
// of the "command" form and the "arguments" form. The compiler word is dropped,
// and so are "-c" and "-o OUT": we only parse. Entries that are not C files
// (assembly, C++) are left out, since the program we build is C only.
// A database often holds several programs (a library, its tests, a static and
// a shared build); globs on the entries' files or outputs take one of them.
// A glob is matched against the path as the entry writes it and against the
// absolute path, with '*' crossing '/', so "*/tests/*" and "src/*" both work.
#include "cfront/compile_db.h"

#include <clang/Tooling/JSONCompilationDatabase.h>
#include <llvm/Support/Path.h>

#include <fnmatch.h>

namespace {

bool is_c_file(const std::string &name) {
    return name.size() > 2 && name.compare(name.size() - 2, 2, ".c") == 0;
}

// Whether the path (relative to dir, or absolute) matches one of the globs;
// no globs take everything.
bool matches(const std::vector<std::string> &globs, const std::string &path, const std::string &dir) {
    if (globs.empty()) return true;
    std::string abs = path;
    if (!llvm::sys::path::is_absolute(path) && !dir.empty()) {
        llvm::SmallString<256> joined(dir);
        llvm::sys::path::append(joined, path);
        llvm::sys::path::remove_dots(joined, true);
        abs = std::string(joined.str());
    }
    for (const std::string &g : globs)
        if (fnmatch(g.c_str(), path.c_str(), 0) == 0 || fnmatch(g.c_str(), abs.c_str(), 0) == 0) return true;
    return false;
}

// The entry's output: its "output" field, or the value of -o in its command.
std::string output_of(const clang::tooling::CompileCommand &cmd) {
    if (!cmd.Output.empty()) return cmd.Output;
    const auto &cl = cmd.CommandLine;
    for (size_t i = 1; i < cl.size(); i++) {
        if (cl[i] == "-o" && i + 1 < cl.size()) return cl[i + 1];
        if (cl[i].rfind("-o", 0) == 0 && cl[i].size() > 2) return cl[i].substr(2);
    }
    return "";
}

}  // namespace

bool load_compile_db(const std::string &dir, const std::vector<std::string> &extra_args,
                     const db_selection &select, std::vector<tu_job> *units, std::string *err) {
    std::string path = dir + "/compile_commands.json";
    std::string msg;
    auto db = clang::tooling::JSONCompilationDatabase::loadFromFile(
        path, msg, clang::tooling::JSONCommandLineSyntax::AutoDetect);
    if (!db) {
        *err = path + ": " + (msg.empty() ? std::string("can't be read") : msg);
        return false;
    }
    for (const auto &cmd : db->getAllCompileCommands()) {
        if (!is_c_file(cmd.Filename)) continue;
        if (!matches(select.files, cmd.Filename, cmd.Directory)) continue;
        if (!matches(select.outputs, output_of(cmd), cmd.Directory)) continue;
        tu_job job;
        job.file = cmd.Filename;
        job.directory = cmd.Directory;
        const auto &cl = cmd.CommandLine;
        for (size_t i = 1; i < cl.size(); i++) {
            if (cl[i] == "-c") continue;
            if (cl[i] == "-o") {
                i++;
                continue;
            }
            if (cl[i].rfind("-o", 0) == 0 && cl[i].size() > 2) continue;
            job.args.push_back(cl[i]);
        }
        // The extra options go before the file names of the entry.
        job.args.insert(job.args.begin(), extra_args.begin(), extra_args.end());
        units->push_back(std::move(job));
    }
    return true;
}
