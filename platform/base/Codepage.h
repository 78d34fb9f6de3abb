#pragma once
// Text in the programs is 8-bit, in code page 1252; the devices speak UTF-8.

#include <string>
#include <string_view>

std::string Cp1252ToUtf8(const std::string& text);
// Characters outside the code page become '?'.
std::string Utf8ToCp1252(const std::string& text);
// The Unicode code point of one byte of code page 1252, and its UTF-8 form (1 to 3 bytes).
char32_t Cp1252ToCodePoint(unsigned char c);
std::string_view Cp1252ByteToUtf8(unsigned char c);
