#pragma once
// A cell value as the memory store keeps it: the property mask and the fields of the set
// properties only, one after another in the order of their bits, strings with their length in
// front. A value of up to 15 bytes lives inside the object (a short text with its data type
// fits), a longer one in a block of its own. Packing reads only the set properties, which is all
// that a later merge reads.

#include "grid/cells/GridCell.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

class PackedCell {
public:
    PackedCell() = default;
    ~PackedCell() { Release(); }
    PackedCell(PackedCell&& other) noexcept;
    PackedCell& operator=(PackedCell&& other) noexcept;
    PackedCell(const PackedCell&) = delete;
    PackedCell& operator=(const PackedCell&) = delete;

    // Replaces the value by the cell's set properties.
    void Pack(const GridCell& cell);
    // Does to `cell` what merging the packed value over it would: the set properties replace
    // the cell's fields and their bits are added.
    void MergeInto(GridCell& cell) const;

    DWORD Mask() const { return mask; }
    // The stored text, with any zero bytes inside it; empty when the mask has no text.
    std::string_view Text() const {
        if (!(mask & PropText)) return {};
        const unsigned char* at = Data();
        std::size_t n = ReadLength(at);
        return {reinterpret_cast<const char*>(at), n};
    }

    // Lengths are written 7 bits to a byte, low bits first; a set high bit means more follow.
    static std::size_t ReadLength(const unsigned char*& at) {
        std::size_t n = 0;
        for (int shift = 0;; shift += 7) {
            unsigned char b = *at++;
            n |= static_cast<std::size_t>(b & 0x7F) << shift;
            if (!(b & 0x80)) return n;
        }
    }

private:
    static constexpr std::size_t InlineCapacity = 15;
    static constexpr unsigned char OnHeap = 0xFF;

    template <typename Sink> static void Encode(const GridCell& cell, Sink& sink);
    bool IsOnHeap() const { return bytes[InlineCapacity] == OnHeap; }
    const unsigned char* Data() const {
        if (!IsOnHeap()) return bytes;
        std::uintptr_t address;
        std::memcpy(&address, bytes, sizeof address);
        return std::bit_cast<const unsigned char*>(address);
    }
    void Release() {
        if (IsOnHeap()) delete[] Data();
    }

    DWORD mask = 0;
    // Inline: the value's bytes, and its length in the last byte. On the heap: the block's
    // address in the first bytes, and OnHeap in the last.
    unsigned char bytes[InlineCapacity + 1] = {};
};
