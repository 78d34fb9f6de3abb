#pragma once
// Maps LISP values to result-buffer chains and back, as the host does: a string is RTSTR, a
// list RTLB ... RTLE, nil RTNIL, T RTT, an integer RTSHORT when it fits 16 bits and RTLONG
// otherwise, a real RTREAL. Towards LISP, RTANG and RTORINT read as reals and RTPOINT and
// RT3DPOINT as lists of two or three reals.

#include "host/ads/Resbuf.h"
#include "host/lisp/LispValue.h"

#include <string>
#include <vector>

namespace host {

class ChainConverter {
public:
    // One element per value; the chain is the caller's, freed with acutRelRb. Null with a
    // reason for a value that has no chain form (a symbol) or a node that could not be made.
    static resbuf* ToChain(const std::vector<LispValue>& values, std::string* error);

    // Reads a chain as a sequence of values. False for a chain that is not well formed:
    // unbalanced list marks, nesting deeper than the reader allows, or a code with no LISP value.
    static bool ToElements(const resbuf* chain, std::vector<LispValue>* elements);

    // The value that acedRetList gives LISP: a chain that is exactly one complete list
    // (RTLB ... its matching RTLE) is that list; any other chain is the list of its elements.
    static bool ToReturnValue(const resbuf* chain, LispValue* value);
};

} // namespace host
