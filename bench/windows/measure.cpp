#include "bench/windows/measure.h"

#include "tests/windows/support/private_memory.h"

#include <algorithm>
#include <cstdio>
#include <vector>

namespace bench {
namespace {

constexpr int kRounds = 9;

double Microseconds(const std::function<void()>& run) {
    LARGE_INTEGER frequency{};
    LARGE_INTEGER start{};
    LARGE_INTEGER end{};
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    run();
    QueryPerformanceCounter(&end);
    return static_cast<double>(end.QuadPart - start.QuadPart) * 1e6 /
           static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> values) {
    std::sort(values.begin(), values.end());
    return values[values.size() / 2];
}

double BytesAnItem(int items, const std::function<void()>& fill) {
    const SIZE_T before = vorn::test::PrivateBytes();
    fill();
    return static_cast<double>(vorn::test::PrivateBytes() - before) / items;
}

std::function<void()> Repeated(int calls, const std::function<void()>& call) {
    return [calls, &call] {
        for (int i = 0; i < calls; ++i) {
            call();
        }
    };
}

void PrintComparison(const char* what, const std::vector<double>& ours,
                     const std::vector<double>& theirs) {
    const double our = Median(ours);
    const double their = Median(theirs);
    std::printf("%-58s %10.2f us %10.2f us %8.2f\n", what, our, their, our / their);
    std::fflush(stdout);
}

} // namespace

void Compare(const char* what, int calls, const std::function<void()>& ours,
             const std::function<void()>& theirs) {
    std::vector<double> ourTimes;
    std::vector<double> theirTimes;
    for (int round = 0; round < kRounds; ++round) {
        ourTimes.push_back(Microseconds(Repeated(calls, ours)) / calls);
        theirTimes.push_back(Microseconds(Repeated(calls, theirs)) / calls);
    }
    PrintComparison(what, ourTimes, theirTimes);
}

void CompareAfter(const char* what, int rounds, const std::function<void()>& prepareOurs,
                  const std::function<void()>& ours, const std::function<void()>& prepareTheirs,
                  const std::function<void()>& theirs) {
    std::vector<double> ourTimes;
    std::vector<double> theirTimes;
    for (int round = 0; round < rounds; ++round) {
        prepareOurs();
        ourTimes.push_back(Microseconds(ours));
        prepareTheirs();
        theirTimes.push_back(Microseconds(theirs));
    }
    PrintComparison(what, ourTimes, theirTimes);
}

void Measure(const char* what, int calls, const std::function<void()>& ours) {
    std::vector<double> times;
    for (int round = 0; round < kRounds; ++round) {
        times.push_back(Microseconds(Repeated(calls, ours)) / calls);
    }
    std::printf("%-58s %10.2f us\n", what, Median(times));
    std::fflush(stdout);
}

void Growth(const char* what, const std::function<void(int)>& run) {
    double first = 0;
    std::printf("%-58s", what);
    for (const int items : {1000, 10000, 100000}) {
        std::vector<double> times;
        for (int round = 0; round < 3; ++round) {
            times.push_back(Microseconds([&] { run(items); }) / items);
        }
        const double cost = Median(times);
        if (first == 0) {
            first = cost;
        }
        std::printf(" %10.2f", cost / first);
        std::fflush(stdout);
    }
    std::printf("\n");
}

void CompareBytes(const char* what, int items, const std::function<void()>& ours,
                  const std::function<void()>& theirs) {
    const double our = BytesAnItem(items, ours);
    const double their = BytesAnItem(items, theirs);
    std::printf("%-58s %10.1f B  %10.1f B  %8.2f\n", what, our, their, our / their);
    std::fflush(stdout);
}

HWND Host() {
    static HWND host =
        CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE | WS_CLIPCHILDREN, 0, 0, 640, 480,
                        nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
    return host;
}

HWND Create(const char* className, DWORD style, int width, int height) {
    return CreateWindowExA(0, className, "", WS_CHILD | WS_VISIBLE | style, 10, 10, width, height,
                           Host(), nullptr, GetModuleHandleA(nullptr), nullptr);
}

FARPROC Exported(const char* name) {
    FARPROC function = GetProcAddress(GetModuleHandleA("VORN32.dll"), name);
    if (function == nullptr) {
        std::printf("VORN32.dll does not export %s\n", name);
        ExitProcess(1);
    }
    return function;
}

} // namespace bench
