// Each worker takes the next unit, lets clang's driver turn the unit's
// command line into a compiler invocation (so that --target, -m32, -std= and
// the include paths mean what they mean to clang), parses it, and then waits
// for its turn: units are consumed strictly in command-line order, which
// makes the output independent of the thread count. A unit's diagnostics are
// kept in a buffer and printed at its turn, so they never interleave.
#include "cfront/tu_runner.h"

#include <clang/AST/ASTConsumer.h>
#include <clang/AST/ASTContext.h>
#include <clang/Basic/Diagnostic.h>
#include <clang/Basic/DiagnosticOptions.h>
#include <clang/Frontend/CompilerInstance.h>
#include <clang/Frontend/CompilerInvocation.h>
#include <clang/Frontend/FrontendAction.h>
#include <clang/Frontend/TextDiagnosticPrinter.h>
#include <clang/Frontend/Utils.h>
#include <llvm/Support/VirtualFileSystem.h>
#include <llvm/Support/raw_ostream.h>

#include <atomic>
#include <condition_variable>
#include <cstdio>
#include <mutex>
#include <thread>

#include "ir/large_stack.h"

namespace {

// The turn of units, shared by the workers.
std::mutex turn_mutex;
std::condition_variable turn_changed;
size_t turn = 0;
bool all_ok = true;

// Waits until unit i may go on, prints its diagnostics, consumes it if it
// parsed cleanly and nothing before it failed, and passes the turn on.
void take_turn(size_t i, std::string &diag_text, bool ok, clang::ASTContext *ctx,
               const std::vector<pragma_words> &pragmas, const unit_consumer &consume) {
    std::unique_lock<std::mutex> lock(turn_mutex);
    turn_changed.wait(lock, [&] { return turn == i; });
    fputs(diag_text.c_str(), stderr);
    fflush(stderr);
    diag_text.clear();
    if (!ok) all_ok = false;
    if (all_ok && ctx) consume(*ctx, pragmas);
    turn++;
    turn_changed.notify_all();
}

// clang's printer, but a diagnostic without a place (one about the unit's
// command line, such as an unknown option) is prefixed with the unit's file,
// so that a database's broken entry can be found.
class unit_printer : public clang::TextDiagnosticPrinter {
public:
    unit_printer(llvm::raw_ostream &os, clang::DiagnosticOptions *opts, const std::string &file)
        : clang::TextDiagnosticPrinter(os, opts), file_prefix("qvt-cfront: " + file) {}

    void HandleDiagnostic(clang::DiagnosticsEngine::Level level, const clang::Diagnostic &info) override {
        setPrefix(info.getLocation().isValid() ? "" : file_prefix);
        clang::TextDiagnosticPrinter::HandleDiagnostic(level, info);
    }

private:
    std::string file_prefix;
};

class parse_action : public clang::ASTFrontendAction {
public:
    parse_action(size_t index, std::string &diag_text, const unit_consumer &consume)
        : index(index), diag_text(diag_text), consume(consume) {}
    bool turn_taken = false;

protected:
    std::unique_ptr<clang::ASTConsumer> CreateASTConsumer(clang::CompilerInstance &ci, llvm::StringRef) override {
        collect_pragmas(ci.getPreprocessor(), &pragmas);
        return std::make_unique<clang::ASTConsumer>();
    }

    void EndSourceFileAction() override {
        clang::CompilerInstance &ci = getCompilerInstance();
        bool ok = !ci.getDiagnostics().hasErrorOccurred();
        if (ok) {
            take_turn(index, diag_text, ok, &ci.getASTContext(), pragmas, consume);
            turn_taken = true;
        }
    }

private:
    size_t index;
    std::string &diag_text;
    const unit_consumer &consume;
    std::vector<pragma_words> pragmas;
};

void run_one(size_t index, const tu_job &job, const unit_consumer &consume) {
    std::string diag_text;
    llvm::raw_string_ostream diag_os(diag_text);
    std::vector<std::string> words = {"clang", "-fsyntax-only", "-resource-dir", QVT_CLANG_RESOURCE_DIR};
    words.insert(words.end(), job.args.begin(), job.args.end());
    // A command written for another compiler may hold its own warning and
    // optimisation options, or options of later build steps; under -Werror
    // clang would refuse every such unit.
    for (const char *w : {"-Wno-unknown-warning-option", "-Wno-ignored-optimization-argument",
                          "-Wno-unused-command-line-argument"})
        words.push_back(w);
    std::vector<const char *> argv;
    for (auto &w : words) argv.push_back(w.c_str());

    llvm::IntrusiveRefCntPtr<clang::DiagnosticOptions> driver_diag_opts = new clang::DiagnosticOptions();
    auto *driver_printer = new unit_printer(diag_os, driver_diag_opts.get(), job.file);
    llvm::IntrusiveRefCntPtr<clang::DiagnosticsEngine> driver_diags =
        new clang::DiagnosticsEngine(new clang::DiagnosticIDs(), driver_diag_opts, driver_printer);
    llvm::IntrusiveRefCntPtr<llvm::vfs::FileSystem> fs = llvm::vfs::createPhysicalFileSystem();
    if (!job.directory.empty()) fs->setCurrentWorkingDirectory(job.directory);

    if (!fs->exists(job.file)) {
        diag_text = "qvt-cfront: error: no such file or directory: '" + job.file + "'\n";
        take_turn(index, diag_text, false, nullptr, {}, consume);
        return;
    }
    std::shared_ptr<clang::CompilerInvocation> inv =
        clang::createInvocationFromCommandLine(argv, driver_diags, fs);
    if (!inv || driver_diags->hasErrorOccurred()) {
        diag_os.flush();
        if (!inv && diag_text.empty()) diag_text = "qvt-cfront: error: can't make a compiler invocation for " + job.file + "\n";
        take_turn(index, diag_text, false, nullptr, {}, consume);
        return;
    }
    // The AST is freed after each unit; clang's default is to leak it.
    inv->getFrontendOpts().DisableFree = false;
    if (!job.directory.empty()) inv->getFileSystemOpts().WorkingDir = job.directory;

    clang::CompilerInstance ci;
    ci.setInvocation(inv);
    ci.createDiagnostics(new unit_printer(diag_os, &inv->getDiagnosticOpts(), job.file), true);
    ci.setVerboseOutputStream(diag_os);
    ci.createFileManager(fs);
    parse_action action(index, diag_text, consume);
    bool ran = ci.ExecuteAction(action);
    if (!action.turn_taken) {
        take_turn(index, diag_text, false, nullptr, {}, consume);
    } else if (!diag_text.empty()) {
        // clang's closing count of warnings, printed after the unit's turn.
        std::lock_guard<std::mutex> lock(turn_mutex);
        fputs(diag_text.c_str(), stderr);
    }
    (void)ran;
}

}  // namespace

bool run_units(const std::vector<tu_job> &units, int threads, const unit_consumer &consume) {
    turn = 0;
    all_ok = true;
    unsigned n = threads > 0 ? (unsigned)threads : std::thread::hardware_concurrency();
    if (n == 0) n = 1;
    if (n > units.size()) n = (unsigned)units.size();
    std::atomic<size_t> next{0};
    auto worker = [&] {
        for (;;) {
            size_t i = next++;
            if (i >= units.size()) return;
            run_one(i, units[i], consume);
        }
    };
    if (n <= 1) {
        worker();
    } else {
        // Deep C makes deep recursion in the lowering: the workers get the
        // large stack the main thread has.
        if (!run_threads_with_large_stack(n, worker)) worker();
    }
    return all_ok;
}
