#pragma once
// The host's result buffer: one node of a chain that carries LISP values between the host and
// a module. Chains are made with acutBuildList and freed with acutRelRb; the string of an
// RTSTR node belongs to the node.

#include <cstdint>

using ads_real = double;
using ads_point = ads_real[3];

union ads_u_val {
    ads_real rreal;
    ads_point rpoint;
    short rint;
    char* rstring;
    std::int32_t rlong;
};

struct resbuf {
    resbuf* rbnext;
    short restype;
    ads_u_val resval;
};
