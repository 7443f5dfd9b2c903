// Tells whether a derived class replaces a virtual step. A control may then keep results of its own
// step, and still ask a replaced one each time.

#pragma once

#include <cstring>
#include <typeinfo>

namespace qv {

// A class in another module reaches a function of this one through a jump in its own module.
inline const void* FollowImportJump(const void* pCode) {
#if defined(__x86_64__) || defined(__i386__)
    unsigned char code[6];
    std::memcpy(code, pCode, sizeof(code));
    if (code[0] == 0xFF && code[1] == 0x25) {
        int nAddress;
        std::memcpy(&nAddress, code + 2, sizeof(nAddress));
#ifdef __x86_64__
        const void* pSlot = static_cast<const unsigned char*>(pCode) + sizeof(code) + nAddress;
#else
        const void* pSlot = reinterpret_cast<const void*>(nAddress);
#endif
        std::memcpy(&pCode, pSlot, sizeof(pCode));
    }
#endif
    return pCode;
}

}  // namespace qv

// True if object, a Class or derived from it, has another Step than Class itself. The compiler's
// extension gives the function that a virtual call would reach. Where there is none, every derived
// class counts as replacing the step: slower, with the same results.
#ifdef __GNUC__
#define QV_REPLACES_STEP(object, Class, Step)                                   \
    ([&] {                                                                      \
        _Pragma("GCC diagnostic push");                                         \
        _Pragma("GCC diagnostic ignored \"-Wpmf-conversions\"");                \
        const void* pOwn = (const void*)(void (*)())((object).*(&Class::Step)); \
        const void* pBase = (const void*)(void (*)())(&Class::Step);            \
        _Pragma("GCC diagnostic pop");                                          \
        return qv::FollowImportJump(pOwn) != qv::FollowImportJump(pBase);       \
    }())
#else
#define QV_REPLACES_STEP(object, Class, Step) (typeid(object) != typeid(Class))
#endif
