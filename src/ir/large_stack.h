// Runs a command's work on threads with a large stack. The walkers of
// bodies and types recurse, and a program may nest statements and
// expressions as deep as the IR format allows (ten thousand levels each);
// the 8 MiB of a process's first thread is too little for that in a build
// with sanitizers. The caller waits for the thread, so the work still runs
// in one thread from start to end; exit() from it ends the process as usual.
#pragma once

#include <pthread.h>

#include <functional>
#include <vector>

// The stack is reserved address space, taken by the pages actually used.
constexpr size_t large_stack_size = (size_t)512 << 20;

namespace large_stack_detail {
struct call {
    int (*fn)(int, char **);
    int argc;
    char **argv;
    int result;
};
inline void *run_function(void *p) {
    (*static_cast<const std::function<void()> *>(p))();
    return nullptr;
}
inline void *trampoline(void *p) {
    call *c = static_cast<call *>(p);
    c->result = c->fn(c->argc, c->argv);
    return nullptr;
}
}  // namespace large_stack_detail

// fn(argc, argv) on a large stack; on its own stack if no thread can be made.
inline int run_with_large_stack(int (*fn)(int, char **), int argc, char **argv) {
    large_stack_detail::call c{fn, argc, argv, 1};
    pthread_attr_t attr;
    pthread_t thread;
    if (pthread_attr_init(&attr) != 0) return fn(argc, argv);
    bool made = pthread_attr_setstacksize(&attr, large_stack_size) == 0 &&
                pthread_create(&thread, &attr, large_stack_detail::trampoline, &c) == 0;
    pthread_attr_destroy(&attr);
    if (!made) return fn(argc, argv);
    pthread_join(thread, nullptr);
    return c.result;
}

// Runs fn on n threads at once, each with a large stack, and waits for them
// all. False if a thread could not be made (those made are still waited for).
inline bool run_threads_with_large_stack(unsigned n, const std::function<void()> &fn) {
    pthread_attr_t attr;
    if (pthread_attr_init(&attr) != 0) return false;
    bool ok = pthread_attr_setstacksize(&attr, large_stack_size) == 0;
    std::vector<pthread_t> threads;
    for (unsigned i = 0; ok && i < n; ++i) {
        pthread_t t;
        void *arg = const_cast<std::function<void()> *>(&fn);
        if (pthread_create(&t, &attr, large_stack_detail::run_function, arg) != 0) ok = false;
        else threads.push_back(t);
    }
    pthread_attr_destroy(&attr);
    for (pthread_t t : threads) pthread_join(t, nullptr);
    return ok;
}
