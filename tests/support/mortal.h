// An object that nobody may touch once it was deleted: whoever does ends the program.
#pragma once

#include <windows.h>

#include <cstddef>

class NoMansLand {
public:
    static void* Allocate(std::size_t nBytes);
    /// Nobody gets this memory again.
    static void Close(void* p, std::size_t nBytes);
};

template <class Base>
class Mortal : public Base {
public:
    using Base::Base;
    static void* operator new(std::size_t nBytes) { return NoMansLand::Allocate(nBytes); }
    static void operator delete(void* p, std::size_t nBytes) { NoMansLand::Close(p, nBytes); }
};
