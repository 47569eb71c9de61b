/* Buses: the list of sensors on each, and a transfer through the driver. */
#include "sensor.h"
#include "extlib/extlib.h"

static int count;  /* buses seen by bus_attach */
int debug_level = 1;

static int last_bus_id = -1;

void bus_attach(struct bus *b, struct sensor *s)
{
    s->bus = b;
    s->next = b->first;
    b->first = s;
    if (b->id != last_bus_id) {
        last_bus_id = b->id;
        count++;
    }
}

void bus_for_each(struct bus *b, sensor_visitor visit, void *data)
{
    struct sensor *s;
    for (s = b->first; s; s = s->next)
        visit(s, data);
}

int bus_count(void)
{
    return count;
}

int bus_transfer(struct bus *b, unsigned char *buf, int len)
{
    return ext_transfer(b->id, buf, len);
}
