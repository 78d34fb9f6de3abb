#include "grid/core/PtrList.h"

#include <algorithm>
#include <climits>
#include <cstring>
#include <new>

int PtrList::Add(CObject* item, int tag, const void* extra) {
    if (count >= capacity && !Grow()) return -1;
    // With count below capacity there is a hole to take.
    PtrListSlot* slot = std::find_if(slots.get(), slots.get() + capacity,
                                     [](const PtrListSlot& s) { return !s.used; });
    slot->used = 1;
    slot->item = item;
    slot->tag = tag;
    if (extra) std::memcpy(slot->extra, extra, ExtraSize);
    ++count;
    return static_cast<int>(slot - slots.get());
}

bool PtrList::Grow() {
    if (capacity > INT_MAX - GrowBy) return false;
    // Running out of memory is an answer of Add, not an exception for its callers.
    std::unique_ptr<PtrListSlot[]> bigger(new (std::nothrow) PtrListSlot[capacity + GrowBy]);
    if (!bigger) return false;
    std::copy(slots.get(), slots.get() + capacity, bigger.get());
    slots = std::move(bigger);
    capacity += GrowBy;
    return true;
}

const PtrListSlot* PtrList::UsedSlot(int index) const {
    if (index < 0 || index >= capacity || !slots[index].used) return nullptr;
    return &slots[index];
}

CObject* PtrList::GetAt(int index) const {
    const PtrListSlot* slot = UsedSlot(index);
    return slot ? slot->item : nullptr;
}

const unsigned char* PtrList::GetExtra(int index) const {
    const PtrListSlot* slot = UsedSlot(index);
    return slot ? slot->extra : nullptr;
}

int PtrList::IndexOf(const CObject* item) const {
    for (int i = 0; i < capacity; ++i)
        if (slots[i].used && slots[i].item == item) return i;
    return -1;
}

int PtrList::GetTag(int index) const {
    const PtrListSlot* slot = UsedSlot(index);
    return slot ? slot->tag : 0;
}

int PtrList::SetTag(int index, int tag) {
    if (index < 0 || index >= capacity) return 1;
    if (!slots[index].used) return 2;
    slots[index].tag = tag;
    return 0;
}

int PtrList::RemoveAt(int index) {
    if (index < 0 || index >= capacity) return 1;
    if (slots[index].used) {
        slots[index] = PtrListSlot{};
        --count;
    }
    return 0;
}

int PtrList::RemoveAll() {
    slots.reset();
    capacity = 0;
    count = 0;
    return 0;
}
