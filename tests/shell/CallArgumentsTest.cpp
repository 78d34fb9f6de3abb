// The arguments of KERVDIALOG read into the stores: the four lists, the catch-all layer, the
// sort of layers with their counts, the rows, and a count list of the wrong length.

#include "shell/CallArguments.h"

#include "host/ads/AdsChains.h"
#include "host/ads/AdsCodes.h"
#include "host/ads/AdsServices.h"
#include "host/session/Host.h"
#include "platform/user/Input.h"
#include "platform/user/WindowManager.h"

#include <functional>
#include <gtest/gtest.h>
#include <sstream>

namespace {

class CallArgumentsTest : public ::testing::Test {
protected:
    void SetUp() override {
        auto hostHook = plat::WindowManager::Get().onEvent;
        plat::WindowManager::Get().onEvent = [hostHook](const std::string& kind,
                                                        const std::string& text) {
            hostHook(kind, text);
            // The alert's box takes the key when its loop runs.
            if (kind == "msgbox" || kind == "alert") plat::PushKey(VK_RETURN);
        };
    }
    void TearDown() override {
        acutRelRb(chain);
        plat::WindowManager::Get().onEvent = previous;
    }
    int Read() { return ReadCallArguments(chain, CallStores{layers, used, types, counts, rows}); }

    std::function<void(const std::string&, const std::string&)> previous =
        plat::WindowManager::Get().onEvent;
    std::ostringstream transcript;
    host::EventLog events{transcript};
    host::Host session{events, *host::Drawing::At("/work/site/plan.dwg")};
    resbuf* chain = nullptr;
    StringStore layers{20}, counts{20};
    IntStore used{20};
    RowStore rows{20};
    std::string types;
};

} // namespace

TEST_F(CallArgumentsTest, ListsFillTheStoresAndLayersSortWithTheirCounts) {
    chain = acutBuildList(RTLB, RTSTR, "b", RTSTR, "A", RTSTR, "a", RTSTR, " x", RTLE,        //
                          RTLB, RTSTR, "T1", RTSTR, "T2", RTLE,                               //
                          RTLB, RTSTR, "7", RTSTR, "12", RTSTR, "3", RTSTR, "1", RTLE,        //
                          RTLB, RTLB, RTSTR, "A", RTSTR, "12", RTSTR, "T1", RTSTR, "1", RTLE, //
                          RTLB, RTSTR, "*", RTSTR, "11", RTSTR, "T2", RTSTR, "13", RTLE, RTLE, 0);
    ASSERT_EQ(Read(), 1);
    // " x" sorts before "*"; "A" and "a" compare equal and keep their order.
    const std::vector<std::string> expectLayers{" x", "*", "A", "a", "b"};
    const std::vector<std::string> expectCounts{"1", "", "12", "3", "7"};
    ASSERT_EQ(layers.GetSize(), 5);
    for (int i = 0; i < 5; ++i) {
        EXPECT_EQ(layers[i], expectLayers[static_cast<size_t>(i)]);
        EXPECT_EQ(counts[i], expectCounts[static_cast<size_t>(i)]);
        EXPECT_EQ(used[i], 0);
    }
    EXPECT_EQ(types, "T1\nT2\n");
    ASSERT_EQ(rows.GetSize(), 2);
    EXPECT_EQ(rows[1], (ParcelRow{"*", "11", "T2", "13"}));
}

TEST_F(CallArgumentsTest, NilRowsLeaveNoneAndAShortCountListIsRefused) {
    rows.Add(ParcelRow{"old", "1", "", "1"});
    chain = acutBuildList(RTLB, RTSTR, "A", RTLE, RTLB, RTSTR, "T", RTLE, RTLB, RTSTR, "4", RTLE,
                          RTNIL, 0);
    ASSERT_EQ(Read(), 1);
    EXPECT_EQ(rows.GetSize(), 0);
    EXPECT_EQ(layers.GetSize(), 2);

    acutRelRb(chain);
    chain = acutBuildList(RTLB, RTSTR, "A", RTSTR, "B", RTLE, RTLB, RTSTR, "T", RTLE, RTLB, RTSTR,
                          "4", RTLE, RTNIL, 0);
    layers.SetSize(0), counts.SetSize(0), used.SetSize(0);
    rows.Add(ParcelRow{"kept", "1", "", "1"});
    EXPECT_EQ(Read(), 0);
    EXPECT_EQ(rows.GetSize(), 1);
    EXPECT_NE(transcript.str().find(";; alert: Count of layers not equal count of counts"),
              std::string::npos);
}
