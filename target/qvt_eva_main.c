/*
 * qvt_eva_main.c: the entry from which Eva analyses a program whose main takes argc and argv.
 *
 * The generated entry point passes main volatile locals, which Eva reads as uninitialised, and
 * Eva's own context for `-main main` gives argv two entries that point to two unterminated
 * bytes each: either way the paths through argv are lost or end in alarms. This entry calls
 * main as the system does: argc from 1 to QVT_EVA_ARGC_MAX, argv[0] to argv[argc - 1] strings
 * of any content and of at most QVT_EVA_ARG_LEN - 1 bytes, argv[argc] a null pointer.
 *
 * The analysis splits on argc, so that each count keeps its own argv; run it with some state
 * splitting in main (scripts/eva.sh gives -eva-slevel-function main:N), or the counts meet
 * again at main's first statement and argv[1] may be null wherever argc was checked.
 */
#include "__fc_builtin.h"

#ifndef QVT_EVA_ARGC_MAX
#define QVT_EVA_ARGC_MAX 5
#endif
#ifndef QVT_EVA_ARG_LEN
#define QVT_EVA_ARG_LEN 64
#endif

int main(int argc, char **argv);

static char qvt_eva_arg_text[QVT_EVA_ARGC_MAX][QVT_EVA_ARG_LEN];
static char *qvt_eva_argv[QVT_EVA_ARGC_MAX + 1];

void __qvt_eva_main(void)
{
    int argc = Frama_C_interval(1, QVT_EVA_ARGC_MAX);
    int i;
    for (i = 0; i < QVT_EVA_ARGC_MAX; i++) {
        Frama_C_make_unknown(qvt_eva_arg_text[i], QVT_EVA_ARG_LEN - 1);
        qvt_eva_arg_text[i][QVT_EVA_ARG_LEN - 1] = 0;
    }
    /*@ split argc; */
    /*@ loop unroll QVT_EVA_ARGC_MAX + 1; */
    for (i = 0; i <= QVT_EVA_ARGC_MAX; i++)
        qvt_eva_argv[i] = i < argc ? qvt_eva_arg_text[i] : 0;
    main(argc, qvt_eva_argv);
}
