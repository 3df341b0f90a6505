// The library's classes are registered for this program itself.
#include "core/classes_win.h"

#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (!vorn::AttachModule(GetModuleHandleA(nullptr))) {
        return 2;
    }
    const int result = RUN_ALL_TESTS();
    vorn::DetachModule();
    return result;
}
