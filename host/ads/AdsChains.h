#pragma once
// Building and freeing result-buffer chains, under the host's names.

#include "host/ads/Resbuf.h"

extern "C" {

// Builds a chain from (code, value) pairs ended by a 0 code. Values by code: RTSTR a string
// (copied; null is refused), RTSHORT an int, RTLONG a 32-bit int, RTREAL, RTANG and RTORINT a
// double, RTPOINT and RT3DPOINT a pointer to the coordinates; RTLB, RTLE, RTNIL, RTT, RTVOID and
// RTNONE take none. Any other code, or a refused value, frees what was built and answers null.
resbuf* acutBuildList(int rtype, ...);

// Frees a whole chain, strings included. Null is allowed and frees nothing.
int acutRelRb(resbuf* chain);
}
