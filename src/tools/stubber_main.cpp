// qvt-stubber: the stubber library's entry point as a command.
#include "driver/stubsuif_main.h"

int main(int argc, char **argv) { return stubsuif_main(argc, argv); }
