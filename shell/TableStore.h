#pragma once
// A growable array of the table's values (layer names, counts, flags, rows) with the growth
// rules the table's code counts on: capacity grows in steps, a write past the end extends the
// array, new entries are empty, and entries cut off by a shrink are released at once.
//
// The capacity is kept by hand rather than left to std::vector, so that it is what the rules
// say it is: asked for 3 entries with a step of 20, a store holds 20; the 21st makes it 40.

#include "shell/ParcelRow.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <string>
#include <utility>

template <typename T> class TableStore {
public:
    explicit TableStore(int growStep = 0) : growStep(growStep) {}
    TableStore(const TableStore& other) { *this = other; }
    TableStore& operator=(const TableStore& other) {
        if (this == &other) return *this;
        SetSize(0);
        growStep = other.growStep;
        SetSize(other.size);
        std::copy(other.data.get(), other.data.get() + other.size, data.get());
        return *this;
    }

    int GetSize() const { return size; }
    int GetCapacity() const { return capacity; }
    void SetGrowStep(int step) { growStep = step; }

    // Size 0 frees the data; new entries are empty, entries cut off are released.
    void SetSize(int newSize) {
        if (newSize <= 0) {
            data.reset();
            size = capacity = 0;
            return;
        }
        if (!data) {
            capacity = std::max(newSize, growStep);
            data = std::make_unique<T[]>(static_cast<std::size_t>(capacity));
        } else if (newSize > capacity) {
            const int step = growStep > 0 ? growStep : std::clamp(size / 8, 4, 1024);
            const int grown = std::max(newSize, capacity + step);
            auto moved = std::make_unique<T[]>(static_cast<std::size_t>(grown));
            std::move(data.get(), data.get() + size, moved.get());
            data = std::move(moved);
            capacity = grown;
        } else {
            std::fill(data.get() + newSize, data.get() + std::max(size, newSize), T{});
        }
        size = newSize;
    }

    // A write at or behind the end first makes the store index + 1 long.
    void SetAt(int index, T value) {
        if (index >= size) SetSize(index + 1);
        data[static_cast<std::size_t>(index)] = std::move(value);
    }
    void Add(T value) { SetAt(size, std::move(value)); }
    const T& operator[](int index) const { return data[static_cast<std::size_t>(index)]; }
    T& operator[](int index) { return data[static_cast<std::size_t>(index)]; }

private:
    std::unique_ptr<T[]> data;
    int size = 0;
    int capacity = 0;
    int growStep;
};

using StringStore = TableStore<std::string>;
using IntStore = TableStore<int>;
using RowStore = TableStore<ParcelRow>;
