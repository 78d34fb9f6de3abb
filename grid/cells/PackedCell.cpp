#include "grid/cells/PackedCell.h"

#include <bit>
#include <new>
#include <utility>

namespace {

// Packing runs twice over the cell: once to count the bytes, once to write them.
struct Counter {
    void Raw(const void*, std::size_t n) { size += n; }
    std::size_t size = 0;
};

struct Filler {
    void Raw(const void* data, std::size_t n) {
        std::memcpy(at, data, n);
        at += n;
    }
    unsigned char* at;
};

template <typename Sink, typename T> void Put(Sink& sink, const T& value) {
    sink.Raw(&value, sizeof value);
}

// Pointers are kept as their numbers.
template <typename Sink, typename T> void PutPointer(Sink& sink, T* pointer) {
    Put(sink, std::bit_cast<std::uintptr_t>(pointer));
}

template <typename Sink> void PutBytes(Sink& sink, const void* data, std::size_t n) {
    unsigned char length[10];
    std::size_t used = 0;
    for (; n >> (7 * used) >= 0x80; ++used)
        length[used] = static_cast<unsigned char>(((n >> (7 * used)) & 0x7F) | 0x80);
    length[used] = static_cast<unsigned char>(n >> (7 * used));
    sink.Raw(length, used + 1);
    sink.Raw(data, n);
}

template <typename Sink> void PutString(Sink& sink, const std::string& s) {
    PutBytes(sink, s.data(), s.size());
}

class Reader {
public:
    explicit Reader(const unsigned char* p) : at(p) {}

    template <typename T> T Get() {
        T value;
        std::memcpy(&value, at, sizeof value);
        at += sizeof value;
        return value;
    }
    template <typename T> T* GetPointer() { return std::bit_cast<T*>(Get<std::uintptr_t>()); }
    std::string_view GetBytes() {
        std::size_t n = PackedCell::ReadLength(at);
        std::string_view s(reinterpret_cast<const char*>(at), n);
        at += n;
        return s;
    }

private:
    const unsigned char* at;
};

} // namespace

PackedCell::PackedCell(PackedCell&& other) noexcept : mask(std::exchange(other.mask, 0)) {
    std::memcpy(bytes, other.bytes, sizeof bytes);
    // What the other one holds is this one's now; an empty inline value is all it keeps.
    other.bytes[InlineCapacity] = 0;
}

PackedCell& PackedCell::operator=(PackedCell&& other) noexcept {
    if (this != &other) {
        Release();
        mask = std::exchange(other.mask, 0);
        std::memcpy(bytes, other.bytes, sizeof bytes);
        other.bytes[InlineCapacity] = 0;
    }
    return *this;
}

template <typename Sink> void PackedCell::Encode(const GridCell& cell, Sink& sink) {
    // One field group per bit, in the order of the bits; bits without a field carry nothing.
    for (DWORD rest = cell.properties; rest; rest &= rest - 1) {
        switch (static_cast<GridCellProperty>(rest & -rest)) {
        case PropText: PutString(sink, cell.text); break;
        case PropMask: PutString(sink, cell.mask); break;
        case PropLabel: PutString(sink, cell.label); break;
        case PropDataType: Put(sink, cell.dataType); break;
        case PropUserValue: Put(sink, cell.userValue); break;
        case PropCellType: Put(sink, cell.cellTypeId); break;
        case PropCellTypeOption: Put(sink, cell.cellTypeOption); break;
        case PropTextColor: Put(sink, cell.textColor); break;
        case PropBackColor: Put(sink, cell.backColor); break;
        case PropHiliteTextColor: Put(sink, cell.hiliteTextColor); break;
        case PropHiliteBackColor: Put(sink, cell.hiliteBackColor); break;
        case PropBorder: Put(sink, cell.border); break;
        case PropBorderPen: PutPointer(sink, cell.borderPen); break;
        case PropFont: PutPointer(sink, cell.font); break;
        case PropBitmap: PutPointer(sink, cell.bitmap); break;
        case PropAlignment: Put(sink, cell.alignment); break;
        case PropExtraData:
            // A set bit without a block (an allocation that failed) stays without one.
            Put(sink, static_cast<unsigned char>(cell.extraData != nullptr));
            if (cell.extraData) PutBytes(sink, cell.extraData.get(), cell.extraSize);
            break;
        case PropJoin:
            Put(sink, cell.joinIsMain);
            Put(sink, cell.joinColOffset);
            Put(sink, cell.joinRowOffset);
            break;
        case PropCellHook: PutPointer(sink, cell.cellHook); break;
        case PropStyleCell: PutPointer(sink, cell.styleCell); break;
        case PropReadOnly: Put(sink, cell.readOnly); break;
        case PropPrecision: Put(sink, cell.precision); break;
        }
    }
}

void PackedCell::Pack(const GridCell& cell) {
    Counter counter;
    Encode(cell, counter);
    if (counter.size <= InlineCapacity) {
        Release();
        Filler filler{bytes};
        Encode(cell, filler);
        bytes[InlineCapacity] = static_cast<unsigned char>(counter.size);
    } else {
        auto* block = new unsigned char[counter.size];
        Filler filler{block};
        Encode(cell, filler);
        Release();
        const auto address = std::bit_cast<std::uintptr_t>(block);
        std::memcpy(bytes, &address, sizeof address);
        bytes[InlineCapacity] = OnHeap;
    }
    mask = cell.properties;
}

void PackedCell::MergeInto(GridCell& cell) const {
    Reader r(Data());
    cell.properties |= mask;
    // Most cells hold a text and its data type and nothing else.
    if (mask == (PropText | PropDataType)) {
        std::string_view text = r.GetBytes();
        // Reads into the same cell again and again mostly meet a text of the same length.
        cell.text.resize(text.size());
        std::memcpy(cell.text.data(), text.data(), text.size());
        cell.dataType = r.Get<WORD>();
        return;
    }
    for (DWORD rest = mask; rest; rest &= rest - 1) {
        switch (static_cast<GridCellProperty>(rest & -rest)) {
        case PropText: cell.text.assign(r.GetBytes()); break;
        case PropMask: cell.mask.assign(r.GetBytes()); break;
        case PropLabel: cell.label.assign(r.GetBytes()); break;
        case PropDataType: cell.dataType = r.Get<WORD>(); break;
        case PropUserValue: cell.userValue = r.Get<std::int32_t>(); break;
        case PropCellType: cell.cellTypeId = r.Get<std::int32_t>(); break;
        case PropCellTypeOption: cell.cellTypeOption = r.Get<std::int32_t>(); break;
        case PropTextColor: cell.textColor = r.Get<COLORREF>(); break;
        case PropBackColor: cell.backColor = r.Get<COLORREF>(); break;
        case PropHiliteTextColor: cell.hiliteTextColor = r.Get<COLORREF>(); break;
        case PropHiliteBackColor: cell.hiliteBackColor = r.Get<COLORREF>(); break;
        case PropBorder: cell.border = r.Get<WORD>(); break;
        case PropBorderPen: cell.borderPen = r.GetPointer<CPen>(); break;
        case PropFont: cell.font = r.GetPointer<CFont>(); break;
        case PropBitmap: cell.bitmap = r.GetPointer<CBitmap>(); break;
        case PropAlignment: cell.alignment = r.Get<WORD>(); break;
        case PropExtraData: {
            cell.extraData.reset();
            cell.extraSize = 0;
            if (!r.Get<unsigned char>()) break;
            std::string_view block = r.GetBytes();
            cell.extraData.reset(new (std::nothrow) unsigned char[block.size()]);
            if (!cell.extraData) break;
            cell.extraSize = static_cast<DWORD>(block.size());
            std::memcpy(cell.extraData.get(), block.data(), block.size());
            break;
        }
        case PropJoin:
            cell.joinIsMain = r.Get<short>();
            cell.joinColOffset = r.Get<std::int32_t>();
            cell.joinRowOffset = r.Get<std::int32_t>();
            break;
        case PropCellHook: cell.cellHook = r.GetPointer<CellHook>(); break;
        case PropStyleCell: cell.styleCell = r.GetPointer<GridCell>(); break;
        case PropReadOnly: cell.readOnly = r.Get<std::int32_t>(); break;
        case PropPrecision: cell.precision = r.Get<short>(); break;
        }
    }
}
