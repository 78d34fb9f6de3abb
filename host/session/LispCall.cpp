#include "host/session/LispCall.h"

#include "host/ads/AdsChains.h"

namespace host {

LispCall::~LispCall() {
    acutRelRb(arguments);
}

} // namespace host
