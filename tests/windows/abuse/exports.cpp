#include "tests/windows/abuse/exports.h"

#include <cstring>
#include <tuple>

namespace vorn::test {
namespace {

constexpr unsigned char kUntouched = 0xA5;

template <class Result>
constexpr ResultKind KindOf() {
    if constexpr (std::is_void_v<Result>) {
        return ResultKind::None;
    } else if constexpr (std::is_same_v<Result, HOLBITEM>) {
        return ResultKind::Item;
    } else if constexpr (std::is_pointer_v<Result>) {
        return ResultKind::Pointer;
    } else if constexpr (std::is_same_v<Result, LONG> || std::is_same_v<Result, LONG_PTR>) {
        return ResultKind::Long;
    } else if constexpr (std::is_same_v<Result, BOOL>) {
        return ResultKind::Bool;
    } else {
        return ResultKind::Other;
    }
}

template <class Result>
LONG_PTR ToNumber(Result result) {
    if constexpr (std::is_pointer_v<Result>) {
        return reinterpret_cast<LONG_PTR>(result);
    } else {
        return static_cast<LONG_PTR>(result);
    }
}

template <class Result, class... Parameters>
Export Describe(const char* name, Result(WINAPI* function)(Parameters...)) {
    const auto call = [function](Arguments& arguments) -> LONG_PTR {
        // In braces the arguments are taken in their order.
        const std::tuple<Parameters...> taken{arguments.Take<Parameters>()...};
        if constexpr (std::is_void_v<Result>) {
            std::apply(function, taken);
            return 0;
        } else {
            return ToNumber(std::apply(function, taken));
        }
    };
    return {name, KindOf<Result>(), call};
}

// Here the window comes last.
Export Describe(const char* name,
                int(WINAPI* function)(const LOGFONTA*, const TEXTMETRICA*, DWORD, LPARAM)) {
    return {name, ResultKind::Other, [function](Arguments& arguments) -> LONG_PTR {
                const TEXTMETRICA metrics{};
                return function(arguments.Take<const LOGFONTA*>(),
                                arguments.nullPointers ? nullptr : &metrics, 0,
                                reinterpret_cast<LPARAM>(arguments.window));
            }};
}

template <class Result>
Export Describe(const char* name, Result(WINAPI*)(HWND, UINT, WPARAM, LPARAM)) {
    return {name, ResultKind::Other, nullptr};
}

} // namespace

Arguments::Arguments(std::uint32_t seed) : random_(seed) {
    output_.fill(kUntouched);
}

LONG Arguments::TakeNumber() {
    constexpr std::array<LONG, 12> edges = {
        0, 1, 2, 3, -1, 4, 16, 64, 0x7FFFFFFF, static_cast<LONG>(0x80000000), 65535, -32768};
    if (sparing) {
        return 0x7FFF0000; // no drive, and no question for all of them
    }
    return random_() % 4 == 0 ? static_cast<LONG>(random_()) : edges[random_() % edges.size()];
}

const void* Arguments::TakeInput() {
    if (nullPointers || random_() % 8 == 0) {
        return nullptr;
    }
    // Terminated texts one behind the other serve lists of texts too.
    const std::uint32_t kind = random_() % 4;
    for (char& byte : input_) {
        byte = static_cast<char>(kind == 0 ? 0 : kind == 1 ? random_() : '0' + random_() % 12);
    }
    for (std::size_t end = 40; end < input_.size(); end += 40) {
        input_[end] = '\0';
    }
    std::memset(&input_[input_.size() - 100], 0, 100);
    // The records that say how large they are would never be read else.
    const DWORD size = sizeof(DtEditParams);
    if (kind == 1) {
        std::memcpy(input_.data(), &size, sizeof size);
    }
    return input_.data();
}

void* Arguments::TakeOutput() {
    if (nullPointers || random_() % 8 == 0) {
        return nullptr;
    }
    output_.fill(kUntouched);
    return output_.data();
}

HOLBITEM Arguments::TakeItem() {
    switch (random_() % 4) {
    case 0:
        return nullptr;
    case 1:
        return OLB_NOITEM;
    default:
        if (olbGetVisibleCount(list) <= 0) {
            return olbAddChildStringEx(list, nullptr, nullptr);
        }
        return olbIndexToHandle(
            list, static_cast<LONG>(random_() % static_cast<unsigned>(olbGetVisibleCount(list))));
    }
}

bool Arguments::Written(std::size_t beyond) const {
    for (std::size_t i = beyond; i < output_.size(); ++i) {
        if (output_[i] != kUntouched) {
            return true;
        }
    }
    return false;
}

#define VORN_EXPORT(name) Describe(#name, name),

const std::vector<Export>& Exports() {
    static const std::vector<Export> exports = {
#include "every_export.inc"
    };
    return exports;
}

} // namespace vorn::test
