// Whether something leaves GDI or USER objects behind.
#pragma once

#include <functional>
#include <string>

namespace vorn::test {

// The places that the last of many new objects get in the system's tables. They fill the gaps that
// freed ones left, so that each that stays behind moves the last of them one up.
struct ObjectPlaces {
    int gdi;
    int user;
};

ObjectPlaces FindObjectPlaces();

constexpr int kObjectCycles = 1000;

// Runs the cycle a few times to warm up and then as often as told. Empty when the process's GDI and
// USER objects are as many afterwards as before, else what grew. Where the system does not count
// them, the place of a newly made object in the system's tables tells: it moves when others stay
// behind.
std::string ObjectsLeftBy(const std::function<void()>& cycle, int cycles = kObjectCycles);

} // namespace vorn::test
