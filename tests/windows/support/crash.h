// What a program that ends by a fault says about it.
#pragma once

#include <string>

namespace vorn::test {

// What is being done from now on, named when a fault ends the program.
void NoteDeed(const std::string& what);

} // namespace vorn::test
