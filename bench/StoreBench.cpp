// The memory store on a sheet of 100,000 rows and 10 columns whose cells hold "r<row>c<col>":
// filling it through SetCell, the memory a cell costs, reading it back in the grid's sweeps and
// in random jumps, a search for a text near the end, and a sort by one column.

#include "grid/cells/GridCell.h"
#include "grid/cells/MemoryDataSource.h"
#include "grid/cells/SourceGrid.h"

#include <benchmark/benchmark.h>
#include <charconv>
#include <cstdio>
#include <memory>
#include <random>
#include <string>
#include <unistd.h>

namespace {

constexpr int Rows = 100000;
constexpr int Cols = 10;

// The grid's side of a search and a sort: its counts and the default ordering.
class SheetGrid : public SourceGrid {
public:
    int GetRowCount() override { return Rows; }
    int GetColCount() override { return Cols; }
    int GetTranslatedCol(int col) override { return col; }
    int SetTranslatedCol(int, int) override { return 0; }
};

SheetGrid sheetGrid;

void Populate(MemoryDataSource& store) {
    GridCell cell;
    std::string text;
    char buffer[32];
    for (int row = 0; row < Rows; ++row) {
        for (int col = 0; col < Cols; ++col) {
            char* end = buffer;
            *end++ = 'r';
            end = std::to_chars(end, buffer + sizeof buffer, row).ptr;
            *end++ = 'c';
            end = std::to_chars(end, buffer + sizeof buffer, col).ptr;
            text.assign(buffer, end);
            cell.SetText(text);
            store.SetCell(col, row, cell);
        }
    }
}

std::unique_ptr<MemoryDataSource> NewStore() {
    auto store = std::make_unique<MemoryDataSource>();
    store->grid = &sheetGrid;
    return store;
}

MemoryDataSource& FilledStore() {
    static std::unique_ptr<MemoryDataSource> store = [] {
        auto s = NewStore();
        Populate(*s);
        return s;
    }();
    return *store;
}

long ResidentBytes() {
    long pages = 0, resident = 0;
    if (FILE* f = std::fopen("/proc/self/statm", "r")) {
        if (std::fscanf(f, "%ld %ld", &pages, &resident) != 2) resident = 0;
        std::fclose(f);
    }
    return resident * sysconf(_SC_PAGESIZE);
}

void BM_Populate(benchmark::State& state) {
    while (state.KeepRunning()) {
        auto store = NewStore();
        Populate(*store);
        state.PauseTiming();
        store.reset();
        state.ResumeTiming();
    }
}

void BM_MemoryPerCell(benchmark::State& state) {
    double perCell = 0;
    while (state.KeepRunning()) {
        long before = ResidentBytes();
        auto store = NewStore();
        Populate(*store);
        perCell = static_cast<double>(ResidentBytes() - before) / (Rows * Cols);
        state.PauseTiming();
        store.reset();
        state.ResumeTiming();
    }
    state.counters["bytes_per_cell"] = perCell;
}

void BM_ReadRowByRow(benchmark::State& state) {
    MemoryDataSource& store = FilledStore();
    GridCell cell;
    while (state.KeepRunning()) {
        long bytes = 0;
        for (int row = 0; row < Rows; ++row) {
            for (int col = 0; col < Cols; ++col) {
                cell.SetProperties(0);
                store.GetCell(col, row, cell);
                bytes += cell.GetTextLength();
            }
        }
        benchmark::DoNotOptimize(bytes);
    }
}

void BM_ReadColumnByColumn(benchmark::State& state) {
    MemoryDataSource& store = FilledStore();
    GridCell cell;
    while (state.KeepRunning()) {
        long bytes = 0;
        for (int col = 0; col < Cols; ++col) {
            for (int row = 0; row < Rows; ++row) {
                cell.SetProperties(0);
                store.GetCell(col, row, cell);
                bytes += cell.GetTextLength();
            }
        }
        benchmark::DoNotOptimize(bytes);
    }
}

void BM_ReadRandomJumps(benchmark::State& state) {
    MemoryDataSource& store = FilledStore();
    std::mt19937 rng(1);
    std::vector<std::pair<int, int>> places(Rows * Cols);
    for (auto& p : places) p = {static_cast<int>(rng() % Cols), static_cast<int>(rng() % Rows)};
    GridCell cell;
    while (state.KeepRunning()) {
        long bytes = 0;
        for (auto [col, row] : places) {
            cell.SetProperties(0);
            store.GetCell(col, row, cell);
            bytes += cell.GetTextLength();
        }
        benchmark::DoNotOptimize(bytes);
    }
}

// Flags 0x8: whole text, exact case, all columns; 0xB: what the find dialog sends by default
// when it searches all columns (part of the text, any case).
void BM_FindNearTheEnd(benchmark::State& state) {
    MemoryDataSource& store = FilledStore();
    const int flags = static_cast<int>(state.range(0));
    while (state.KeepRunning()) {
        int col = 0, row = 0;
        int answer = store.FindFirst("r99998c7", &col, &row, flags);
        if (answer != 0 || col != 7 || row != 99998) state.SkipWithError("not found");
    }
}

// Descending by text, "r9c3" comes first.
void BM_SortByColumnDescending(benchmark::State& state) {
    bool sorted = true;
    while (state.KeepRunning()) {
        state.PauseTiming();
        auto store = NewStore();
        Populate(*store);
        state.ResumeTiming();
        store->SortRowsByCol(3, 0x2);
        state.PauseTiming();
        GridCell first;
        store->GetCell(3, 0, first);
        sorted = sorted && std::string(first.GetText()) == "r9c3";
        store.reset();
        state.ResumeTiming();
    }
    if (!sorted) state.SkipWithError("not sorted");
}

} // namespace

BENCHMARK(BM_Populate)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BM_MemoryPerCell)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_ReadRowByRow)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadColumnByColumn)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_ReadRandomJumps)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_FindNearTheEnd)->Arg(0x8)->Arg(0xB)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_SortByColumnDescending)->Unit(benchmark::kMillisecond)->Iterations(3);

BENCHMARK_MAIN();
