#include "host/ads/AdsChains.h"

#include "host/ads/AdsCodes.h"

#include <cstdarg>
#include <cstdlib>
#include <cstring>

extern "C" resbuf* acutBuildList(int rtype, ...) {
    va_list args;
    va_start(args, rtype);
    resbuf* first = nullptr;
    resbuf* last = nullptr;
    // Each pass reads one code and the value that belongs to it; a code without a defined value
    // type, or a refused value, drops the whole chain.
    for (int code = rtype; code != 0; code = va_arg(args, int)) {
        resbuf node{};
        node.restype = static_cast<short>(code);
        bool valid = true;
        switch (code) {
        case RTSTR: {
            const char* text = va_arg(args, const char*);
            node.resval.rstring = text ? strdup(text) : nullptr;
            valid = node.resval.rstring != nullptr;
            break;
        }
        case RTSHORT: node.resval.rint = static_cast<short>(va_arg(args, int)); break;
        case RTLONG: node.resval.rlong = va_arg(args, std::int32_t); break;
        case RTREAL:
        case RTANG:
        case RTORINT: node.resval.rreal = va_arg(args, double); break;
        case RTPOINT:
        case RT3DPOINT: {
            const ads_real* point = va_arg(args, const ads_real*);
            valid = point != nullptr;
            for (int i = 0; valid && i < (code == RTPOINT ? 2 : 3); ++i)
                node.resval.rpoint[i] = point[i];
            break;
        }
        case RTLB:
        case RTLE:
        case RTNIL:
        case RTT:
        case RTVOID:
        case RTNONE: break;
        default: valid = false;
        }
        if (!valid) {
            acutRelRb(first);
            first = nullptr;
            break;
        }
        resbuf* added = new resbuf(node);
        (last ? last->rbnext : first) = added;
        last = added;
    }
    va_end(args);
    return first;
}

extern "C" int acutRelRb(resbuf* chain) {
    while (chain) {
        resbuf* next = chain->rbnext;
        if (chain->restype == RTSTR) std::free(chain->resval.rstring);
        delete chain;
        chain = next;
    }
    return RTNORM;
}
