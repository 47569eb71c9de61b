/* Sensors: initialisation and reading through their bus. */
#include "sensor.h"
#include "extlib/extlib.h"

#pragma QUORVANTA_PURE "ext_checksum"

static int count;  /* sensors initialised in this file */

void sensor_init(struct sensor *s, const char *name, struct bus *b)
{
    s->name = name;
    s->mode = MODE_POLL;
    s->flags.enabled = 1;
    s->flags.calibrated = 0;
    s->next = 0;
    bus_attach(b, s);
    count++;
}

int sensor_read(struct sensor *s)
{
    unsigned char buf[4];
    int i;
    if (!s->flags.enabled)
        return -1;
    if (s->bus->transfer(s->bus, buf, 4) != 4) {
        s->flags.error_code = 1;
        station_log(1, "read failed on %s", s->name);
        return -1;
    }
    if (ext_checksum(buf, 4) != 0 && (ext_status & 1u))
        return -1;
    for (i = 0; i < 4; i++)
        s->last.bytes[i] = buf[i];
    return s->last.raw;
}

/* The driver returns how many bytes it moved, or -1. */
#pragma QUORVANTA_DRS permanent "ext_transfer.return" "-1" "4"
