/* A message queue library: messages in a linked list, a capacity and a trace level that the
   application sets, a log hook that the application provides. It has no main of its own. */
#ifndef QUEUE_H
#define QUEUE_H

enum priority { PRIO_LOW, PRIO_NORMAL, PRIO_HIGH };

struct message {
    enum priority prio;
    unsigned int urgent : 1;
    unsigned int retries : 3;
    int length;
    unsigned char payload[16];
    struct message *next;
};

struct queue {
    struct message *head;
    struct message *tail;
    int count;
    void (*on_drop)(struct message *m);
};

/* Defined by the application. */
extern int queue_capacity;
extern int trace_level;
void log_event(int code, const char *text);

extern struct queue pending;

int queue_push(struct queue *q, struct message *m);
struct message *queue_pop(struct queue *q);
int queue_total_length(const struct queue *q);
int queue_count_urgent(const struct queue *q);
void queue_trace(int code);

#endif
