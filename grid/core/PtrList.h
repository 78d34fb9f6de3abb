#pragma once
// The grid's registries of fonts, bitmaps and cell types. A slot's position is the index that
// callers keep, so an index stays valid until its slot is removed: removing leaves a hole that
// the next Add fills, and nothing ever moves. The list stores but does not own its items; an
// owner that must delete them walks every slot up to GetCapacity(), holes included.

#include "platform/afx/CObject.h"

#include <cstdint>
#include <memory>

struct PtrListSlot {
    std::int32_t used = 0;
    CObject* item = nullptr;
    // The user's number; the font registry counts its extra holders here.
    std::int32_t tag = 0;
    unsigned char extra[16] = {};
};

class PtrList : public CObject {
public:
    static constexpr int ExtraSize = sizeof(PtrListSlot::extra);

    PtrList() = default;
    PtrList(const PtrList&) = delete;
    PtrList& operator=(const PtrList&) = delete;

    // The index of the slot taken, or -1 when the table cannot grow. `extra`, when given,
    // points to ExtraSize bytes that are copied into the slot.
    int Add(CObject* item, int tag, const void* extra = nullptr);
    // Null for an index outside the table and for a free slot.
    CObject* GetAt(int index) const;
    // The ExtraSize bytes stored with the item; null where GetAt is null.
    const unsigned char* GetExtra(int index) const;
    int IndexOf(const CObject* item) const;
    int GetTag(int index) const;
    // 0; 1 for an index outside the table; 2 for a free slot.
    int SetTag(int index, int tag);
    // 0, also for a slot that is free already; 1 for an index outside the table.
    int RemoveAt(int index);
    int RemoveAll();
    int GetCount() const { return count; }
    int GetCapacity() const { return capacity; }

private:
    static constexpr int GrowBy = 10;

    bool Grow();
    const PtrListSlot* UsedSlot(int index) const;

    std::unique_ptr<PtrListSlot[]> slots;
    std::int32_t capacity = 0;
    std::int32_t count = 0;
};
