/* Draining the pending queue into a buffer, highest priority first. */
#include "queue.h"

union slot {
    struct message *message;
    long raw;
};

static union slot drained[8];

int queue_drain(enum priority min_prio)
{
    int n = 0;
    struct message *m;
    while (n < 8 && (m = queue_pop(&pending)) != 0)
        if (m->prio >= min_prio)
            drained[n++].message = m;
    return n;
}
