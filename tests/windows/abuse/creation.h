// Windows that are only half there.
#pragma once

#include "tests/windows/support/spy.h"

#include <windows.h>
#include <functional>
#include <memory>
#include <string>

namespace vorn::test {

// How far a window's creation is.
enum class CreationStage {
    Bare,           // its handle is there, it has got no message
    BeforeNcCreate, // WM_NCCREATE comes
    AfterNcCreate,  // the class has answered it
    BeforeCreate,
    AfterCreate,
};

inline constexpr CreationStage kCreationStages[] = {
    CreationStage::Bare, CreationStage::BeforeNcCreate, CreationStage::AfterNcCreate,
    CreationStage::BeforeCreate, CreationStage::AfterCreate};

// While it is there, it looks over the shoulder of the next window of a class from the start of
// its creation on.
class CreationWatch {
public:
    explicit CreationWatch(const std::string& className);
    ~CreationWatch();
    CreationWatch(const CreationWatch&) = delete;
    CreationWatch& operator=(const CreationWatch&) = delete;

    // Called at each stage; true refuses the creation there.
    std::function<bool(HWND, CreationStage)> at;
    // Called before each message, from the first on.
    std::function<void(const Message&)> before;

    HWND window() const { return window_; } // null before it came

private:
    static LRESULT CALLBACK OnHook(int code, WPARAM wParam, LPARAM lParam);
    static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool Meet(HWND window);
    bool Ask(CreationStage stage);
    LRESULT Pass(const Message& message);
    LRESULT PassCreation(const Message& message, CreationStage before, CreationStage after,
                         LRESULT refusal);

    std::string className_;
    HHOOK hook_;
    HWND window_ = nullptr;
    WNDPROC procedure_ = nullptr;
};

} // namespace vorn::test
