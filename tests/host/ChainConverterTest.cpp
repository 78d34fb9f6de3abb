#include "host/lisp/ChainConverter.h"

#include "host/ads/AdsChains.h"
#include "host/ads/AdsCodes.h"
#include "host/lisp/LispPrinter.h"
#include "host/lisp/LispReader.h"

#include <cstdlib>
#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace {

using host::ChainConverter;
using host::LispValue;

struct Chain {
    resbuf* first;
    ~Chain() { acutRelRb(first); }
};

std::vector<LispValue> Read(const std::string& text) {
    host::LispReader reader(text);
    std::vector<LispValue> values;
    LispValue form;
    while (reader.Next(&form) == host::ReadStatus::Form) values.push_back(form);
    return values;
}

std::vector<short> Codes(const resbuf* chain) {
    std::vector<short> codes;
    for (; chain; chain = chain->rbnext) codes.push_back(chain->restype);
    return codes;
}

TEST(ChainConverter, ValuesBecomeTheHostsCodes) {
    std::string error;
    Chain chain{ChainConverter::ToChain(Read(R"("a" ("b" nil) T 32767 -32768 32768 -32769 2.5 ())"),
                                        &error)};
    EXPECT_EQ(Codes(chain.first), (std::vector<short>{RTSTR, RTLB, RTSTR, RTNIL, RTLE, RTT, RTSHORT,
                                                      RTSHORT, RTLONG, RTLONG, RTREAL, RTNIL}));
    const resbuf* node = chain.first;
    for (int i = 0; i < 8; ++i) node = node->rbnext;
    EXPECT_EQ(node->resval.rlong, 32768);
    EXPECT_EQ(node->rbnext->resval.rlong, -32769);
}

TEST(ChainConverter, ChainsReadBackAsTheSameValues) {
    const std::string text = R"("x\ny" ((("deep"))) nil T -5 100000 0.25 ("A" "12" "T1" "1"))";
    const std::vector<LispValue> values = Read(text);
    std::string error;
    Chain chain{ChainConverter::ToChain(values, &error)};
    std::vector<LispValue> back;
    ASSERT_TRUE(ChainConverter::ToElements(chain.first, &back));
    EXPECT_EQ(back, values);
}

TEST(ChainConverter, ListsAsDeepAsTheReaderAllowsPass) {
    const int depth = host::LispReader::kMaxDepth;
    const std::vector<LispValue> values =
        Read(std::string(depth, '(') + "\"x\"" + std::string(depth, ')'));
    ASSERT_EQ(values.size(), 1u);
    std::string error;
    Chain chain{ChainConverter::ToChain(values, &error)};
    std::vector<LispValue> back;
    ASSERT_TRUE(ChainConverter::ToElements(chain.first, &back));
    EXPECT_EQ(back, values);
}

TEST(ChainConverter, SymbolsHaveNoChainForm) {
    for (const char* text : {"A", "(1 (B))"}) {
        std::string error;
        EXPECT_EQ(ChainConverter::ToChain(Read(text), &error), nullptr) << text;
        EXPECT_EQ(error.rfind("bad argument type: ", 0), 0u) << error;
    }
}

TEST(ChainConverter, OneCompleteListReturnsAsItselfAnythingElseAsAListOfElements) {
    const ads_real point[3] = {1, 2, 3};
    const struct {
        resbuf* chain;
        const char* value;
    } cases[] = {
        {nullptr, "nil"},
        {acutBuildList(RTSTR, "a", 0), R"(("a"))"},
        {acutBuildList(RTSTR, "a", RTSTR, "b", 0), R"(("a" "b"))"},
        {acutBuildList(RTLB, RTSTR, "a", RTSTR, "b", RTLE, 0), R"(("a" "b"))"},
        {acutBuildList(RTLB, RTLE, 0), "nil"},
        {acutBuildList(RTNIL, 0), "(nil)"},
        {acutBuildList(RTLB, RTSTR, "a", RTLE, RTLB, RTSTR, "b", RTLE, 0), R"((("a") ("b")))"},
        {acutBuildList(RTLB, RTLB, RTSTR, "A", RTLE, RTLE, 0), R"((("A")))"},
        {acutBuildList(RTLB, RTSTR, "a", RTLE, RTSTR, "b", 0), R"((("a") "b"))"},
        {acutBuildList(RTPOINT, point, RT3DPOINT, point, 0), "((1.0 2.0) (1.0 2.0 3.0))"},
        {acutBuildList(RTSHORT, 3, RTLONG, 70000, RTANG, 0.5, RTORINT, 1.5, RTT, 0),
         "(3 70000 0.5 1.5 T)"},
    };
    for (const auto& c : cases) {
        Chain owner{c.chain};
        LispValue value;
        ASSERT_TRUE(ChainConverter::ToReturnValue(c.chain, &value)) << c.value;
        EXPECT_EQ(host::LispPrinter::Print(value), c.value);
    }
}

TEST(ChainConverter, MalformedChainsAreRefused) {
    // One list level deeper than the reader allows, balanced.
    resbuf* deep = nullptr;
    for (int i = 0; i <= host::LispReader::kMaxDepth; ++i) {
        resbuf* open = acutBuildList(RTLB, 0);
        resbuf* close = acutBuildList(RTLE, 0);
        open->rbnext = deep ? deep : close;
        if (deep) {
            resbuf* last = deep;
            while (last->rbnext) last = last->rbnext;
            last->rbnext = close;
        }
        deep = open;
    }
    resbuf* nullString = acutBuildList(RTSTR, "x", 0);
    std::free(nullString->resval.rstring);
    nullString->resval.rstring = nullptr;
    resbuf* const chains[] = {
        acutBuildList(RTLB, RTSTR, "a", 0),
        acutBuildList(RTSTR, "a", RTLE, 0),
        acutBuildList(RTLE, RTLB, 0),
        acutBuildList(RTVOID, 0),
        acutBuildList(RTNONE, 0),
        nullString,
        deep,
    };
    for (resbuf* chain : chains) {
        Chain owner{chain};
        LispValue value = LispValue::String("unchanged");
        EXPECT_FALSE(ChainConverter::ToReturnValue(chain, &value));
        EXPECT_EQ(value, LispValue::String("unchanged"));
    }
}

} // namespace
