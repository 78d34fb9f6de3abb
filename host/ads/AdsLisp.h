#pragma once
// Defining LISP functions and answering their calls, under the host's names. A module defines
// its functions while it handles kLoadDwgMsg; when LISP calls one, the module gets kInvkSubrMsg
// and reads the function code and the arguments, and sets the value with one of the acedRet
// calls (the last one wins; a function that calls none returns nil). Outside of a module's
// message these calls answer RTERROR.

#include "host/ads/Resbuf.h"

extern "C" {

// Names are matched without regard to case; defining a name again replaces it.
int acedDefun(const char* name, int functionCode);
int acedUndef(const char* name, int functionCode);

// The code given to acedDefun for the function being called; RTERROR outside of a call.
int acedGetFunCode();
// The arguments as one chain, one element per argument; null when the call has none. The chain
// stays the host's: the module reads it and never frees it.
resbuf* acedGetArgs();

int acedRetVoid(); // no value at all: LISP prints nothing
int acedRetNil();
int acedRetStr(const char* text);
// A chain that is exactly one list (RTLB ... its RTLE) returns that list; any other chain, the
// list of its elements. The chain is copied and stays the caller's. RTERROR, and the value
// unchanged, for a chain that is not well formed.
int acedRetList(const resbuf* chain);
}
