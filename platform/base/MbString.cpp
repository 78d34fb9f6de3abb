#include "platform/base/MbString.h"

#include <array>
#include <cstring>

namespace {

// Upper and lower case pairs of code page 1252: A to Z, the accented letters from 0xC0 (the
// multiplication and division signs at 0xD7 and 0xF7 are no letters) and the four pairs of the
// 0x80 row. Sharp s and micro have no capital in the code page and stay as they are.
constexpr std::array<unsigned char, 256> MakeUpper() {
    std::array<unsigned char, 256> t{};
    for (int c = 0; c < 256; ++c) t[c] = static_cast<unsigned char>(c);
    for (int c = 'a'; c <= 'z'; ++c) t[c] = static_cast<unsigned char>(c - 0x20);
    for (int c = 0xE0; c <= 0xFE; ++c)
        if (c != 0xF7) t[c] = static_cast<unsigned char>(c - 0x20);
    t[0x9A] = 0x8A;
    t[0x9C] = 0x8C;
    t[0x9E] = 0x8E;
    t[0xFF] = 0x9F;
    return t;
}

constexpr std::array<unsigned char, 256> MakeLower() {
    constexpr std::array<unsigned char, 256> upper = MakeUpper();
    std::array<unsigned char, 256> t{};
    for (int c = 0; c < 256; ++c) t[c] = static_cast<unsigned char>(c);
    for (int c = 0; c < 256; ++c)
        if (upper[c] != c) t[upper[c]] = static_cast<unsigned char>(c);
    return t;
}

constexpr std::array<unsigned char, 256> Upper = MakeUpper();
constexpr std::array<unsigned char, 256> Lower = MakeLower();

int Sign(int d) {
    return (d > 0) - (d < 0);
}

} // namespace

int _mbscmp(const unsigned char* a, const unsigned char* b) {
    if (!a || !b) return _NLSCMPERROR;
    return Sign(std::strcmp(reinterpret_cast<const char*>(a), reinterpret_cast<const char*>(b)));
}

int _mbsicmp(const unsigned char* a, const unsigned char* b) {
    if (!a || !b) return _NLSCMPERROR;
    for (;; ++a, ++b) {
        int d = Lower[*a] - Lower[*b];
        if (d != 0 || *a == 0) return Sign(d);
    }
}

const unsigned char* _mbsstr(const unsigned char* s, const unsigned char* sub) {
    if (!s || !sub) return nullptr;
    return reinterpret_cast<const unsigned char*>(
        std::strstr(reinterpret_cast<const char*>(s), reinterpret_cast<const char*>(sub)));
}

unsigned char* _mbsstr(unsigned char* s, const unsigned char* sub) {
    return const_cast<unsigned char*>(_mbsstr(static_cast<const unsigned char*>(s), sub));
}

const unsigned char* _mbsrchr(const unsigned char* s, unsigned int c) {
    if (!s || c > 0xFF) return nullptr;
    return reinterpret_cast<const unsigned char*>(
        std::strrchr(reinterpret_cast<const char*>(s), static_cast<int>(c)));
}

unsigned char* _mbsrchr(unsigned char* s, unsigned int c) {
    return const_cast<unsigned char*>(_mbsrchr(static_cast<const unsigned char*>(s), c));
}

unsigned char* _mbslwr(unsigned char* s) {
    if (!s) return nullptr;
    for (unsigned char* p = s; *p; ++p) *p = Lower[*p];
    return s;
}

unsigned char* _mbsupr(unsigned char* s) {
    if (!s) return nullptr;
    for (unsigned char* p = s; *p; ++p) *p = Upper[*p];
    return s;
}

unsigned int _mbctolower(unsigned int c) {
    return c <= 0xFF ? Lower[c] : c;
}

unsigned int _mbctoupper(unsigned int c) {
    return c <= 0xFF ? Upper[c] : c;
}

int _ismbcspace(unsigned int c) {
    return c == ' ' || (c >= '\t' && c <= '\r');
}
