/* A small sensor station: sensors sit on buses, a bus knows its sensors. */
#ifndef SENSOR_H
#define SENSOR_H

struct bus;

enum sensor_mode { MODE_OFF, MODE_POLL, MODE_IRQ = 4 };

struct sensor_flags {
    unsigned int enabled : 1;
    unsigned int calibrated : 1;
    unsigned int : 2;
    unsigned int error_code : 4;
};

union sensor_value {
    int raw;
    float scaled;
    unsigned char bytes[4];
};

struct sensor {
    const char *name;
    enum sensor_mode mode;
    struct sensor_flags flags;
    union sensor_value last;
    struct bus *bus;
    struct sensor *next;
};

struct bus {
    int id;
    struct sensor *first;
    int (*transfer)(struct bus *b, unsigned char *buf, int len);
};

typedef void (*sensor_visitor)(struct sensor *s, void *data);

extern int station_id;
extern int debug_level;

void sensor_init(struct sensor *s, const char *name, struct bus *b);
int sensor_read(struct sensor *s);
void bus_attach(struct bus *b, struct sensor *s);
void bus_for_each(struct bus *b, sensor_visitor visit, void *data);
int bus_count(void);
void station_log(int level, const char *fmt, ...);

#endif
