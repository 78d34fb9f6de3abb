#include "shell/ads_list_user.h"

#include "host/ads/AdsChains.h"
#include "host/ads/AdsCodes.h"
#include "host/ads/AdsServices.h"

ads_list_user::~ads_list_user() {
    acutRelRb(first);
}

ads_list_user& ads_list_user::operator+(resbuf* chain) {
    if (!chain) {
        // Worded like the failed string's report, so that both failures read alike.
        acdbFail("\n Error of allocate memory ads_list_user & operator + (resbuf * )");
        return *this;
    }
    if (!first)
        first = chain;
    else
        last->rbnext = chain;
    // Only the appended chain is walked, so a long list grows at constant cost per node.
    last = chain;
    while (last->rbnext) last = last->rbnext;
    last->rbnext = nullptr;
    return *this;
}

ads_list_user& ads_list_user::operator+(const char* text) {
    resbuf* node = acutBuildList(RTSTR, text, 0);
    if (!node) {
        acdbFail("\n Error of allocate memory ads_list_user & operator + (char * )");
        return *this;
    }
    return *this + node;
}
