/* An external driver library: its header ships with the program, its code doesn't. */
#ifndef EXTLIB_H
#define EXTLIB_H

int ext_transfer(int bus_id, unsigned char *buf, int len);
unsigned short ext_checksum(const unsigned char *buf, int len);
extern volatile unsigned int ext_status;

#endif
