#include "host/ads/AdsChains.h"

#include "host/ads/AdsCodes.h"

#include <cstring>
#include <gtest/gtest.h>
#include <string>

namespace {

// Frees a chain at the end of a test, whatever it checked.
struct Chain {
    resbuf* first;
    ~Chain() { acutRelRb(first); }
};

int Length(const resbuf* chain) {
    int n = 0;
    for (; chain; chain = chain->rbnext) ++n;
    return n;
}

TEST(AcutBuildList, EachValueTypeIsStoredUnderItsCode) {
    const ads_real point[3] = {1.5, -2.5, 7.0};
    Chain chain{acutBuildList(RTSTR, "abc", RTSHORT, -7, RTLONG, 70000, RTREAL, 2.5, RTANG, 0.5,
                              RTORINT, 1.25, RTPOINT, point, RT3DPOINT, point, RTLB, RTNIL, RTT,
                              RTLE, RTVOID, RTNONE, 0)};
    const short codes[] = {RTSTR,     RTSHORT, RTLONG, RTREAL, RTANG, RTORINT, RTPOINT,
                           RT3DPOINT, RTLB,    RTNIL,  RTT,    RTLE,  RTVOID,  RTNONE};
    ASSERT_EQ(Length(chain.first), 14);
    const resbuf* node = chain.first;
    for (short code : codes) {
        EXPECT_EQ(node->restype, code);
        node = node->rbnext;
    }
    const resbuf* n = chain.first;
    EXPECT_STREQ(n->resval.rstring, "abc");
    EXPECT_EQ((n = n->rbnext)->resval.rint, -7);
    EXPECT_EQ((n = n->rbnext)->resval.rlong, 70000);
    EXPECT_EQ((n = n->rbnext)->resval.rreal, 2.5);
    EXPECT_EQ((n = n->rbnext)->resval.rreal, 0.5);
    EXPECT_EQ((n = n->rbnext)->resval.rreal, 1.25);
    n = n->rbnext;
    EXPECT_EQ(n->resval.rpoint[0], 1.5);
    EXPECT_EQ(n->resval.rpoint[1], -2.5);
    n = n->rbnext;
    EXPECT_EQ(n->resval.rpoint[2], 7.0);
}

TEST(AcutBuildList, StringIsACopyOwnedByTheNode) {
    char text[] = "layer";
    Chain chain{acutBuildList(RTSTR, text, 0)};
    text[0] = 'X';
    ASSERT_NE(chain.first, nullptr);
    EXPECT_STREQ(chain.first->resval.rstring, "layer");
    EXPECT_NE(chain.first->resval.rstring, text);
}

TEST(AcutBuildList, SingleMarkIsOneNode) {
    Chain chain{acutBuildList(RTLB, 0)};
    ASSERT_EQ(Length(chain.first), 1);
    EXPECT_EQ(chain.first->restype, RTLB);
}

TEST(AcutBuildList, RefusedValueOrUnknownCodeGivesNoChain) {
    EXPECT_EQ(acutBuildList(0), nullptr);
    EXPECT_EQ(acutBuildList(RTSTR, static_cast<const char*>(nullptr), 0), nullptr);
    // Nodes built before the refused one are freed, not leaked (the sanitizer build checks).
    EXPECT_EQ(acutBuildList(RTSTR, "a", RTLB, RTSTR, static_cast<const char*>(nullptr), 0),
              nullptr);
    EXPECT_EQ(acutBuildList(RTSTR, "a", RTENAME, 0), nullptr);
    EXPECT_EQ(acutBuildList(RTSTR, "a", RTPOINT, static_cast<const ads_real*>(nullptr), 0),
              nullptr);
}

TEST(AcutRelRb, FreesLongChainsAndNull) {
    EXPECT_EQ(acutRelRb(nullptr), RTNORM);
    resbuf* first = acutBuildList(RTSTR, "0", 0);
    resbuf* last = first;
    for (int i = 1; i < 200000; ++i) {
        last->rbnext = acutBuildList(RTSTR, std::to_string(i).c_str(), 0);
        last = last->rbnext;
    }
    EXPECT_EQ(Length(first), 200000);
    EXPECT_EQ(acutRelRb(first), RTNORM);
}

} // namespace
