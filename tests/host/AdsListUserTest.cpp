#include "host/ads/AdsChains.h"
#include "host/ads/AdsCodes.h"
#include "host/session/Host.h"
#include "shell/ads_list_user.h"

#include <gtest/gtest.h>
#include <sstream>
#include <string>
#include <vector>

namespace {

// A running host, so that acdbFail reports into `events`.
class AdsListUserTest : public ::testing::Test {
protected:
    std::ostringstream transcript;
    host::EventLog events{transcript};
    host::Host hostSession{events, *host::Drawing::At("")};
};

std::vector<short> Codes(const resbuf* chain) {
    std::vector<short> codes;
    for (; chain; chain = chain->rbnext) codes.push_back(chain->restype);
    return codes;
}

TEST_F(AdsListUserTest, StartsEmpty) {
    ads_list_user list;
    EXPECT_EQ(list.first, nullptr);
    EXPECT_EQ(list.last, nullptr);
}

TEST_F(AdsListUserTest, FirstAppendSetsBothEnds) {
    ads_list_user list;
    list + "A";
    ASSERT_NE(list.first, nullptr);
    EXPECT_EQ(list.first, list.last);
    EXPECT_EQ(list.first->restype, RTSTR);
    EXPECT_STREQ(list.first->resval.rstring, "A");
}

TEST_F(AdsListUserTest, AppendedChainOfThreeMovesLastToItsThird) {
    ads_list_user list;
    list + "A";
    resbuf* chain = acutBuildList(RTLB, RTSTR, "B", RTLE, 0);
    resbuf* third = chain->rbnext->rbnext;
    list + chain;
    EXPECT_EQ(list.first->rbnext, chain);
    EXPECT_EQ(list.last, third);
    EXPECT_EQ(list.last->rbnext, nullptr);
}

TEST_F(AdsListUserTest, BuildsARowAsTheTableDoes) {
    ads_list_user list;
    list + acutBuildList(RTLB, 0) + "A" + "12" + "T1" + "1" + acutBuildList(RTLE, 0);
    EXPECT_EQ(Codes(list.first), (std::vector<short>{RTLB, RTSTR, RTSTR, RTSTR, RTSTR, RTLE}));
    EXPECT_STREQ(list.first->rbnext->rbnext->rbnext->resval.rstring, "T1");
    EXPECT_EQ(list.last->restype, RTLE);
    EXPECT_EQ(transcript.str(), "");
}

TEST_F(AdsListUserTest, FailedStringIsReportedAndLeavesAGap) {
    ads_list_user list;
    list + "A";
    list + static_cast<const char*>(nullptr);
    list + "B";
    EXPECT_EQ(transcript.str(),
              ";; fail: \\n Error of allocate memory ads_list_user & operator + (char * )\n");
    EXPECT_EQ(Codes(list.first), (std::vector<short>{RTSTR, RTSTR}));
    EXPECT_STREQ(list.last->resval.rstring, "B");
}

TEST_F(AdsListUserTest, FailedMarkIsReportedAndChangesNothing) {
    ads_list_user list;
    list + "A";
    resbuf* before = list.last;
    list + static_cast<resbuf*>(nullptr);
    EXPECT_EQ(list.last, before);
    EXPECT_EQ(list.last->rbnext, nullptr);
    EXPECT_NE(transcript.str().find("Error of allocate memory ads_list_user"), std::string::npos);
}

} // namespace
