/* A program of the C library through the real system headers. */
#include <pthread.h>
#include <signal.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static volatile sig_atomic_t stop;
static pthread_mutex_t lock = PTHREAD_MUTEX_INITIALIZER;

static void on_signal(int sig) { stop = sig; }

static void *worker(void *arg)
{
    char *buf = arg;
    pthread_mutex_lock(&lock);
    snprintf(buf, 32, "%s %zu", "len", strlen(buf));
    pthread_mutex_unlock(&lock);
    return NULL;
}

int main(void)
{
    pthread_t t;
    char *buf = calloc(1, 64);
    signal(SIGINT, on_signal);
    if (!buf || pthread_create(&t, NULL, worker, buf) != 0)
        return EXIT_FAILURE;
    pthread_join(t, NULL);
    fputs(buf, stdout);
    free(buf);
    return stop ? 1 : 0;
}
