#pragma once
// The host's published codes: value types of result buffers (restype) and the results of its
// calls. Modules compare against these numbers, so they are the host's own, not ours.

// Value types of a result buffer.
#define RTNONE 5000
#define RTREAL 5001
#define RTPOINT 5002
#define RTSHORT 5003
#define RTANG 5004
#define RTSTR 5005
#define RTENAME 5006
#define RTPICKS 5007
#define RTORINT 5008
#define RT3DPOINT 5009
#define RTLONG 5010
#define RTVOID 5014
#define RTLB 5016
#define RTLE 5017
#define RTDOTE 5018
#define RTNIL 5019
#define RTDXF0 5020
#define RTT 5021

// Results of host calls.
#define RTNORM 5100
#define RTERROR (-5001)
#define RTCAN (-5002)
#define RTREJ (-5003)
#define RTFAIL (-5004)

// What a function that LISP called reports back to the dispatcher of its module.
#define RSRSLT 1
#define RSERR 3
