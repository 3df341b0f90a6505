// Does to a control of each class, at random and for minutes, what hosts and users do to it, and
// watches what the process has meanwhile: soak.exe [MINUTES [SEED]]. Fails when that grows.
#include "tests/windows/abuse/subject_operations.h"
#include "tests/windows/abuse/subjects.h"
#include "tests/windows/support/crash.h"
#include "tests/windows/support/objects.h"
#include "tests/windows/support/private_memory.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <vector>
#include <vorn32.h>

namespace vorn::test {
namespace {

constexpr int kRows = 20;        // of the table
constexpr UINT kDialogTime = 50; // milliseconds
constexpr int kRebornOneIn = 40; // steps after which a control is made anew in another style

// What may come and go. Heaps hold some memory ready, more after a busy time than after a quiet
// one.
constexpr double kMoreKib = 512;
constexpr int kMoreObjects = 3;

// What the process has: memory, and the places that new objects get in the system's tables.
struct Having {
    double kib; // of private memory
    int gdi;
    int user;
};

Having Measure() {
    const ObjectPlaces places = FindObjectPlaces();
    return {static_cast<double>(PrivateBytes()) / 1024, places.gdi, places.user};
}

void Pump() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

// A press on a date edit's button opens a dialog, which ends soon in one way or the other.
void CALLBACK EndDateDialog(HWND, UINT, UINT_PTR, DWORD time) {
    EndDateDialogs(time / 64 % 2 == 0 ? IDOK : IDCANCEL);
}

// All but the clipboard: each reading of it leaves 1 KiB of Wine's own in the process, whoever
// reads.
std::vector<Operation> FlatOperationsOf(const Subject& subject) {
    std::vector<Operation> operations = OperationsOf(subject);
    std::erase_if(operations,
                  [](const Operation& operation) { return operation.name == "clipboard"; });
    return operations;
}

// A control of a class in a window of its own.
class Player {
public:
    explicit Player(const Subject& subject)
        : subject_(subject), stage_(subject), operations_(FlatOperationsOf(subject)) {}

    void Step(std::mt19937& random) {
        if (!IsWindow(stage_.control()) || random() % kRebornOneIn == 0) {
            stage_.Create(subject_.styles[random() % subject_.styles.size()]);
        } else {
            const Operation& operation = operations_[random() % operations_.size()];
            NoteDeed(operation.name + " of a " + subject_.className);
            operation.run(stage_.control());
        }
        Pump();
        stage_.host().TakeNotifications();
    }

    void End() { stage_.Clear(); }

private:
    const Subject& subject_;
    Stage stage_;
    std::vector<Operation> operations_;
};

// The mean of a quarter of the rows, from this one on.
Having MeanFrom(const std::vector<Having>& rows, std::size_t first) {
    constexpr std::size_t kQuarter = kRows / 4;
    Having sum{};
    for (std::size_t i = first; i < first + kQuarter; ++i) {
        sum.kib += rows[i].kib / kQuarter;
        sum.gdi += rows[i].gdi;
        sum.user += rows[i].user;
    }
    return {sum.kib, sum.gdi / int{kQuarter}, sum.user / int{kQuarter}};
}

// Whether the last quarter has what the second had; the first is for what is made once.
bool IsFlat(const std::vector<Having>& rows) {
    const Having before = MeanFrom(rows, kRows / 4);
    const Having after = MeanFrom(rows, kRows / 4 * 3);
    return after.kib - before.kib <= kMoreKib && after.gdi - before.gdi <= kMoreObjects &&
           after.user - before.user <= kMoreObjects;
}

bool Soak(double minutes, unsigned seed) {
    std::vector<std::unique_ptr<Player>> players;
    for (const Subject& subject : Subjects()) {
        players.push_back(std::make_unique<Player>(subject));
    }
    std::mt19937 random(seed);
    std::vector<Having> rows;
    const double rowTime = minutes * 60'000 / kRows;
    const UINT_PTR timer = SetTimer(nullptr, 0, kDialogTime, EndDateDialog);
    const ULONGLONG start = GetTickCount64();
    long long steps = 0;
    std::printf("%8s %12s %14s %8s %8s\n", "minutes", "operations", "memory, KiB", "GDI", "USER");
    for (int row = 1; row <= kRows; ++row) {
        while (static_cast<double>(GetTickCount64() - start) < row * rowTime) {
            players[random() % players.size()]->Step(random);
            ++steps;
        }
        // The same windows are there each time.
        for (const auto& player : players) {
            player->End();
        }
        Pump();
        rows.push_back(Measure());
        const Having& having = rows.back();
        std::printf("%8.1f %12lld %14.0f %8d %8d\n", row * rowTime / 60'000, steps, having.kib,
                    having.gdi, having.user);
        std::fflush(stdout);
    }
    KillTimer(nullptr, timer);
    return IsFlat(rows);
}

} // namespace
} // namespace vorn::test

int main(int argc, char** argv) {
    const double minutes = argc > 1 ? std::atof(argv[1]) : 10;
    const unsigned seed = argc > 2 ? static_cast<unsigned>(std::atoi(argv[2])) : GetTickCount();
    std::printf("seed %u\n", seed);
    const bool flat = vorn::test::Soak(minutes, seed);
    std::printf(flat ? "[  PASSED  ] 1 test: flat\n" : "[  FAILED  ] it grows\n");
    return flat ? 0 : 1;
}
