// The outline list held against the system's list box.
#pragma once

#include "tests/windows/support/list_session.h"

#include <gtest/gtest.h>
#include <vorn32.h>

namespace vorn::test {

// The name of a message and the message.
#define MESSAGE(name) #name, name

// Holds a session with both and expects every step to lead to the same. Returns the outcomes.
inline std::vector<Outcome> ExpectTheSame(DWORD style,
                                          const std::function<void(ListSession&)>& script) {
    const std::vector<Outcome> theirs = HoldListSession("LISTBOX", style, script);
    const std::vector<Outcome> ours = HoldListSession(VORN_HIERLIST_CLASS, style, script);
    EXPECT_EQ(theirs.size(), ours.size());
    for (std::size_t i = 0; i < theirs.size() && i < ours.size(); ++i) {
        SCOPED_TRACE(testing::Message() << "style " << std::hex << style << std::dec << ", step "
                                        << i << ": " << theirs[i].step);
        EXPECT_EQ(theirs[i].answer, ours[i].answer);
        EXPECT_EQ(theirs[i].contents, ours[i].contents);
        EXPECT_EQ(theirs[i].view, ours[i].view);
        if (testing::Test::HasFailure()) {
            break; // what follows differs by itself
        }
    }
    return theirs;
}

} // namespace vorn::test
