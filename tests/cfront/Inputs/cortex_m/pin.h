/* The board's pin, as the board support package defines it. */
#ifndef PIN_H
#define PIN_H
#include <stdint.h>
struct pin_config { volatile uint32_t *port; uint8_t number; uint8_t mode; };
void pin_write(const struct pin_config *pin, int level);
#endif
