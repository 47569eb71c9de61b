/* The serial driver carries its own copy of the pin struct, as vendor drivers do. */
#ifndef UART_H
#define UART_H
#include <stdint.h>
#include <stddef.h>
struct pin_config { volatile uint32_t *port; uint8_t number; uint8_t mode; };
struct uart { struct pin_config tx, rx; uint32_t baud; };
size_t uart_send(struct uart *u, const uint8_t *data, size_t len);
#endif
