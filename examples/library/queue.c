/* The queue: push at the tail, pop at the head, walks over the list. */
#include "queue.h"

struct queue pending;
int dropped;
static int trace_counts[4];

int queue_push(struct queue *q, struct message *m)
{
    if (q->count >= queue_capacity) {
        dropped++;
        if (q->on_drop)
            q->on_drop(m);
        queue_trace(1);
        return -1;
    }
    m->next = 0;
    if (q->tail)
        q->tail->next = m;
    else
        q->head = m;
    q->tail = m;
    q->count++;
    return q->count;
}

struct message *queue_pop(struct queue *q)
{
    struct message *m = q->head;
    if (!m)
        return 0;
    q->head = m->next;
    if (!q->head)
        q->tail = 0;
    q->count--;
    return m;
}

int queue_total_length(const struct queue *q)
{
    int total = 0;
    for (const struct message *m = q->head; m; m = m->next)
        total += m->length;
    return total;
}

int queue_count_urgent(const struct queue *q)
{
    int urgent = 0;
    for (const struct message *m = q->head; m; m = m->next)
        if (m->urgent)
            urgent++;
    return urgent;
}

void queue_trace(int code)
{
    if (trace_level > 0) {
        trace_counts[trace_level - 1]++;
        log_event(code, "queue");
    }
}
