/* The station: sets up one bus with two sensors, polls them, logs through the C library. */
#include <stdarg.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "sensor.h"

int station_id;

int bus_transfer(struct bus *b, unsigned char *buf, int len);

void station_log(int level, const char *fmt, ...)
{
    va_list ap;
    if (level > debug_level)
        return;
    va_start(ap, fmt);
    fprintf(stderr, "station %d: ", station_id);
    vfprintf(stderr, fmt, ap);
    fputc('\n', stderr);
    va_end(ap);
}

static void print_sensor(struct sensor *s, void *data)
{
    int *total = data;
    *total += sensor_read(s);
    printf("%s: %d\n", s->name, s->last.raw);
}

int main(int argc, char **argv)
{
    struct bus *b = malloc(sizeof *b);
    struct sensor temp, pressure;
    int total = 0;
    if (!b)
        return 1;
    if (argc > 1 && argv[1][0] >= '0' && argv[1][0] <= '9')
        station_id = argv[1][0] - '0';
    memset(b, 0, sizeof *b);
    b->id = 1;
    b->transfer = bus_transfer;
    sensor_init(&temp, "temperature", b);
    sensor_init(&pressure, "pressure", b);
    bus_for_each(b, print_sensor, &total);
    station_log(0, "%d buses, total %d", bus_count(), total);
    free(b);
    return 0;
}
