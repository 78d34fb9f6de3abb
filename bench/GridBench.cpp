// The grid's data jobs on a sheet of 100,000 rows by 10 columns whose cells hold "r<row>c<col>",
// through the control's own operations, on the headless window system. With --kervgrid-lines
// it prints the median of each figure as `kervgrid NAME VALUE UNIT` (scripts/bench).

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>
#include <unistd.h>

#include "grid/core/GridCtrl.h"
#include "platform/user/User.h"

namespace {

constexpr int Rows = 100000, Cols = 10;

// "r<row>c<col>" into `text`, reusing its buffer: the harness's own share of the populate stays
// small next to the grid's.
void CellText(int col, int row, std::string& text) {
    char buffer[32];
    char* end = buffer;
    *end++ = 'r';
    end = std::to_chars(end, buffer + sizeof buffer, row).ptr;
    *end++ = 'c';
    end = std::to_chars(end, buffer + sizeof buffer, col).ptr;
    text.assign(buffer, end);
}

HWND Parent() {
    static HWND parent = [] {
        WNDCLASS wc;
        wc.lpfnWndProc = DefWindowProc;
        wc.lpszClassName = "BenchParent";
        RegisterClass(&wc);
        return CreateWindow("BenchParent", "bench", WS_POPUP | WS_VISIBLE, 0, 0, 800, 600, nullptr, nullptr, nullptr, nullptr);
    }();
    return parent;
}

std::unique_ptr<GridCtrl> NewGrid() {
    auto grid = std::make_unique<GridCtrl>();
    grid->CreateGrid(WS_CHILD | WS_VISIBLE, RECT{0, 0, 800, 600}, CWnd::FromHandle(Parent()), 1);
    grid->SetColCount(Cols, 0);
    grid->SetRowCount(Rows, 0);
    return grid;
}

void Populate(GridCtrl& grid) {
    std::string text;
    for (int row = 0; row < Rows; ++row)
        for (int col = 0; col < Cols; ++col) {
            CellText(col, row, text);
            grid.SetCellText(col, row, text);
        }
}

GridCtrl& Filled() {
    static std::unique_ptr<GridCtrl> grid = [] {
        auto g = NewGrid();
        Populate(*g);
        return g;
    }();
    return *grid;
}

long ResidentBytes() {
    std::ifstream statm("/proc/self/statm");
    long size = 0, resident = 0;
    statm >> size >> resident;
    return resident * sysconf(_SC_PAGESIZE);
}

void BM_populate(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto grid = NewGrid();
        state.ResumeTiming();
        Populate(*grid);
        state.PauseTiming();
        grid.reset();
        state.ResumeTiming();
    }
}

void BM_populate_mem_per_cell(benchmark::State& state) {
    double perCell = 0;
    for (auto _ : state) {
        auto grid = NewGrid();
        long before = ResidentBytes();
        Populate(*grid);
        perCell = static_cast<double>(ResidentBytes() - before) / (double(Rows) * Cols);
    }
    state.counters["bytes"] = perCell;
}

void BM_readback(benchmark::State& state) {
    GridCtrl& grid = Filled();
    std::string text;
    for (auto _ : state) {
        size_t total = 0;
        for (int row = 0; row < Rows; ++row)
            for (int col = 0; col < Cols; ++col) {
                grid.GetCellText(col, row, text);
                total += text.size();
            }
        benchmark::DoNotOptimize(total);
    }
}

void BM_goto(benchmark::State& state) {
    GridCtrl& grid = Filled();
    // The jump itself, without repainting.
    grid.EnableUpdates(0);
    grid.GotoRow(0);
    for (auto _ : state) {
        grid.GotoRow(Rows - 1);
        grid.GotoRow(0);
    }
    grid.EnableUpdates(1);
}

void BM_sort(benchmark::State& state) {
    for (auto _ : state) {
        state.PauseTiming();
        auto grid = NewGrid();
        Populate(*grid);
        state.ResumeTiming();
        grid->SortByCol(3, 0x2);
        state.PauseTiming();
        grid.reset();
        state.ResumeTiming();
    }
}

void BM_find(benchmark::State& state) {
    GridCtrl& grid = Filled();
    for (auto _ : state) {
        int col = 0, row = 0;
        int found = grid.FindInDataSource("r99998c7", &col, &row, 0x8);
        benchmark::DoNotOptimize(found);
        if (found != 0 || row != 99998) state.SkipWithError("the text was not found where it is");
    }
}

BENCHMARK(BM_populate)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_populate_mem_per_cell)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_readback)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_goto)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_sort)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_find)->Unit(benchmark::kMillisecond);

// Prints the medians of repeated runs as the lines scripts/bench promises.
class LineReporter : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override {
        for (const Run& run : runs) {
            if (run.aggregate_name != "median") continue;
            std::string name = run.run_name.function_name.substr(3);
            if (name == "populate_mem_per_cell") {
                auto it = run.counters.find("bytes");
                if (it != run.counters.end()) std::printf("kervgrid %s %.1f B\n", name.c_str(), it->second.value);
            } else {
                double ms = run.GetAdjustedRealTime();
                std::printf("kervgrid %s %.4g ms\n", name.c_str(), ms);
            }
            std::fflush(stdout);
        }
    }
};

}  // namespace

int main(int argc, char** argv) {
    bool lines = false;
    std::vector<char*> args;
    for (int i = 0; i < argc; ++i) {
        if (!std::strcmp(argv[i], "--kervgrid-lines")) lines = true;
        else args.push_back(argv[i]);
    }
    int count = static_cast<int>(args.size());
    benchmark::Initialize(&count, args.data());
    if (lines) {
        LineReporter reporter;
        benchmark::RunSpecifiedBenchmarks(&reporter);
    } else {
        benchmark::RunSpecifiedBenchmarks();
    }
    benchmark::Shutdown();
    return 0;
}
