// The database is read by clang's own reader, which knows the quoting rules
// of the "command" form and the "arguments" form. The compiler word is dropped,
// and so are "-c" and "-o OUT": we only parse. Entries that are not C files
// (assembly, C++) are left out, since the program we build is C only.
#include "cfront/compile_db.h"

#include <clang/Tooling/JSONCompilationDatabase.h>

namespace {

bool is_c_file(const std::string &name) {
    return name.size() > 2 && name.compare(name.size() - 2, 2, ".c") == 0;
}

}  // namespace

bool load_compile_db(const std::string &dir, const std::vector<std::string> &extra_args,
                     std::vector<tu_job> *units, std::string *err) {
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
