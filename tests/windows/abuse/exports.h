// Every function that the DLL exports, called with whatever its parameters may be. The list is
// that of core/exports.txt, the parameters are those of the public headers.
#pragma once

#include <windows.h>
#include <array>
#include <cstdint>
#include <functional>
#include <random>
#include <string>
#include <vector>
#include <vorn32.h>

namespace vorn::test {

// Where the arguments of a call come from. Numbers are edges and random ones; what is read through
// pointers is random, but has an end where a text must have one; what is written through them can
// be seen.
class Arguments {
public:
    explicit Arguments(std::uint32_t seed);

    HWND window = nullptr; // the first argument
    HWND list = nullptr;   // whose items are handed over
    HDC context = nullptr; // to draw to
    bool nullPointers = false;
    bool sparing = false; // no numbers that make the system search a whole drive

    template <class Type>
    Type Take();

    // Whether something was written to where results go, beyond so many bytes.
    bool Written(std::size_t beyond = 0) const;

private:
    LONG TakeNumber();
    const void* TakeInput();
    void* TakeOutput();
    HOLBITEM TakeItem();

    std::mt19937 random_;
    std::array<char, 4096> input_{};
    std::array<unsigned char, 8192> output_{};
};

template <class Type>
Type Arguments::Take() {
    if constexpr (std::is_same_v<Type, HWND>) {
        return window;
    } else if constexpr (std::is_same_v<Type, HOLBITEM>) {
        return TakeItem();
    } else if constexpr (std::is_same_v<Type, HDC>) {
        return nullPointers ? nullptr : context;
    } else if constexpr (std::is_same_v<Type, HFONT> || std::is_same_v<Type, HBITMAP>) {
        // None, or a handle that is none.
        return nullPointers ? nullptr : reinterpret_cast<Type>(LONG_PTR{0x7ABC7ABC});
    } else if constexpr (!std::is_pointer_v<Type>) {
        return static_cast<Type>(TakeNumber());
    } else if constexpr (std::is_const_v<std::remove_pointer_t<Type>>) {
        return static_cast<Type>(TakeInput());
    } else {
        return static_cast<Type>(TakeOutput());
    }
}

// What a function without a control answers is told by the kind of its result.
enum class ResultKind { None, Bool, Long, Pointer, Item, Other };

struct Export {
    std::string name;
    ResultKind kind;
    // Empty for procedures, whose parameters depend on the message.
    std::function<LONG_PTR(Arguments&)> call;
};

const std::vector<Export>& Exports();

} // namespace vorn::test
