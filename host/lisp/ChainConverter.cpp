#include "host/lisp/ChainConverter.h"

#include "host/ads/AdsChains.h"
#include "host/ads/AdsCodes.h"
#include "host/lisp/LispReader.h"

#include <limits>

namespace host {

namespace {

class ChainBuilder {
public:
    ~ChainBuilder() { acutRelRb(first); }

    bool Add(resbuf* node) {
        if (!node) return false;
        (last ? last->rbnext : first) = node;
        last = node;
        return true;
    }

    bool AddValue(const LispValue& value, std::string* error) {
        switch (value.Type()) {
        case LispType::Nil: return Add(acutBuildList(RTNIL, 0));
        case LispType::T: return Add(acutBuildList(RTT, 0));
        case LispType::Integer: {
            const std::int32_t n = value.IntegerValue();
            if (n >= std::numeric_limits<short>::min() && n <= std::numeric_limits<short>::max())
                return Add(acutBuildList(RTSHORT, static_cast<int>(n), 0));
            return Add(acutBuildList(RTLONG, n, 0));
        }
        case LispType::Real: return Add(acutBuildList(RTREAL, value.RealValue(), 0));
        case LispType::String: return Add(acutBuildList(RTSTR, value.Text().c_str(), 0));
        case LispType::Symbol: *error = "bad argument type: " + value.Text(); return false;
        case LispType::List:
            if (!Add(acutBuildList(RTLB, 0))) return false;
            for (const LispValue& item : value.Items())
                if (!AddValue(item, error)) return false;
            return Add(acutBuildList(RTLE, 0));
        }
        return false;
    }

    resbuf* Release() {
        resbuf* chain = first;
        first = last = nullptr;
        return chain;
    }

private:
    resbuf* first = nullptr;
    resbuf* last = nullptr;
};

LispValue Point(const ads_point point, int dimensions) {
    std::vector<LispValue> coordinates;
    coordinates.reserve(dimensions);
    for (int i = 0; i < dimensions; ++i) coordinates.push_back(LispValue::Real(point[i]));
    return LispValue::List(std::move(coordinates));
}

} // namespace

resbuf* ChainConverter::ToChain(const std::vector<LispValue>& values, std::string* error) {
    ChainBuilder builder;
    for (const LispValue& value : values) {
        if (builder.AddValue(value, error)) continue;
        if (error->empty()) *error = "out of memory for the argument list";
        return nullptr;
    }
    return builder.Release();
}

bool ChainConverter::ToElements(const resbuf* chain, std::vector<LispValue>* elements) {
    // Open lists, innermost last; the bottom entry collects the top-level elements.
    std::vector<std::vector<LispValue>> open(1);
    for (const resbuf* node = chain; node; node = node->rbnext) {
        std::vector<LispValue>& items = open.back();
        switch (node->restype) {
        case RTLB:
            if (open.size() > LispReader::kMaxDepth) return false;
            open.emplace_back();
            break;
        case RTLE: {
            if (open.size() == 1) return false;
            LispValue list = LispValue::List(std::move(open.back()));
            open.pop_back();
            open.back().push_back(std::move(list));
            break;
        }
        case RTSTR:
            if (!node->resval.rstring) return false;
            items.push_back(LispValue::String(node->resval.rstring));
            break;
        case RTSHORT: items.push_back(LispValue::Integer(node->resval.rint)); break;
        case RTLONG: items.push_back(LispValue::Integer(node->resval.rlong)); break;
        case RTREAL:
        case RTANG:
        case RTORINT: items.push_back(LispValue::Real(node->resval.rreal)); break;
        case RTPOINT: items.push_back(Point(node->resval.rpoint, 2)); break;
        case RT3DPOINT: items.push_back(Point(node->resval.rpoint, 3)); break;
        case RTNIL: items.push_back(LispValue::Nil()); break;
        case RTT: items.push_back(LispValue::T()); break;
        default: return false;
        }
    }
    if (open.size() != 1) return false;
    *elements = std::move(open.front());
    return true;
}

bool ChainConverter::ToReturnValue(const resbuf* chain, LispValue* value) {
    std::vector<LispValue> elements;
    if (!ToElements(chain, &elements)) return false;
    if (elements.size() == 1 && chain->restype == RTLB)
        *value = std::move(elements.front());
    else
        *value = LispValue::List(std::move(elements));
    return true;
}

} // namespace host
