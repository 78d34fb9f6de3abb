#pragma once
// The runtime library's multibyte string helpers. Text is in code page 1252, which has no lead
// bytes, so each behaves as its plain byte counterpart (strcmp, strstr, ...), with case folding
// that covers the code page's accented letters as well as A to Z. As in the runtime library, the
// comparisons answer _NLSCMPERROR for a null argument and the searches answer null.

#include <climits>

constexpr int _NLSCMPERROR = INT_MAX;

int _mbscmp(const unsigned char* a, const unsigned char* b);
// Compares as if both strings were in lower case, so "_" sorts before the letters.
int _mbsicmp(const unsigned char* a, const unsigned char* b);
const unsigned char* _mbsstr(const unsigned char* s, const unsigned char* sub);
unsigned char* _mbsstr(unsigned char* s, const unsigned char* sub);
// Finds the last c; a c of 0 finds the terminator.
const unsigned char* _mbsrchr(const unsigned char* s, unsigned int c);
unsigned char* _mbsrchr(unsigned char* s, unsigned int c);
// Both work in place and answer s.
unsigned char* _mbslwr(unsigned char* s);
unsigned char* _mbsupr(unsigned char* s);
unsigned int _mbctolower(unsigned int c);
unsigned int _mbctoupper(unsigned int c);
// Space, and tab to carriage return.
int _ismbcspace(unsigned int c);

// The same for the plain char strings that the rest of the code keeps.
inline const unsigned char* MbBytes(const char* s) {
    return reinterpret_cast<const unsigned char*>(s);
}
inline unsigned char* MbBytes(char* s) {
    return reinterpret_cast<unsigned char*>(s);
}

inline int _mbscmp(const char* a, const char* b) {
    return _mbscmp(MbBytes(a), MbBytes(b));
}
inline int _mbsicmp(const char* a, const char* b) {
    return _mbsicmp(MbBytes(a), MbBytes(b));
}
inline const char* _mbsstr(const char* s, const char* sub) {
    return reinterpret_cast<const char*>(_mbsstr(MbBytes(s), MbBytes(sub)));
}
inline char* _mbsstr(char* s, const char* sub) {
    return reinterpret_cast<char*>(_mbsstr(MbBytes(s), MbBytes(sub)));
}
inline const char* _mbsrchr(const char* s, unsigned int c) {
    return reinterpret_cast<const char*>(_mbsrchr(MbBytes(s), c));
}
inline char* _mbsrchr(char* s, unsigned int c) {
    return reinterpret_cast<char*>(_mbsrchr(MbBytes(s), c));
}
inline char* _mbslwr(char* s) {
    return reinterpret_cast<char*>(_mbslwr(MbBytes(s)));
}
inline char* _mbsupr(char* s) {
    return reinterpret_cast<char*>(_mbsupr(MbBytes(s)));
}
