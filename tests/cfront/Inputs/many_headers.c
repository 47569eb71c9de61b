/* Many system headers, a few of their functions used. */
#include <assert.h>
#include <ctype.h>
#include <errno.h>
#include <fcntl.h>
#include <float.h>
#include <limits.h>
#include <locale.h>
#include <math.h>
#include <setjmp.h>
#include <signal.h>
#include <stdarg.h>
#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <time.h>
#include <unistd.h>
#include <wchar.h>
#include <pthread.h>
static jmp_buf env;
int main(int argc, char **argv) {
    struct stat st; time_t now = time(NULL); struct tm *tm = localtime(&now);
    uint64_t big = UINT64_MAX; int fd = open(argv[0], O_RDONLY);
    assert(argc > 0);
    if (setjmp(env)) return 1;
    if (fstat(fd, &st) == 0 && isdigit((unsigned char)argv[0][0])) errno = EINVAL;
    printf("%f %d %llu %s %ls\n", sqrt(2.0) * fabs(-1.0), tm->tm_year, (unsigned long long)big, setlocale(LC_ALL, ""), L"w");
    close(fd);
    return errno ? EXIT_FAILURE : EXIT_SUCCESS;
}
