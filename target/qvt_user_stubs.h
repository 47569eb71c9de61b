/*
 * qvt_user_stubs.h: included by the generated skeleton qvt_user_stubs.c.
 *
 * The skeleton is commented out; a user who turns one of its entries into a hand-written stub
 * names types by the generated names of qvt_stub_types.h and may use everything that the
 * analysis target offers. Put the stubs directory on the include path to reach the type header.
 */
#ifndef QVT_USER_STUBS_H
#define QVT_USER_STUBS_H

#include "qvt_target.h"

#if defined(__has_include)
#if __has_include("qvt_stub_types.h")
#include "qvt_stub_types.h"
#endif
#endif

#endif /* QVT_USER_STUBS_H */
