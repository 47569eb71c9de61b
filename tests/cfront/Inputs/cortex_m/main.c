#include <stdio.h>
#include <string.h>
#include "pin.h"
#include "sensor.h"

static struct pin_config led = {0, 5, 1};

int main(int argc, char **argv)
{
    char line[32];
    int value = sensor_sample(argc);
    snprintf(line, sizeof line, "%d %s", value, argc > 0 ? argv[0] : "");
    pin_write(&led, strlen(line) > 4);
    return 0;
}
