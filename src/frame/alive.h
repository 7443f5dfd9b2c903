// Whether a control is still there after somebody outside was told something: the parent that gets
// a notification may destroy the control's window, or delete the control. The control has a token,
// and who leads out of it takes a watch before and asks it after:
//
//     const qv::WindowWatch watch(m_alive, m_hWnd);
//     SetItemState(nItem, 0, LVIS_SELECTED);  // the parent is told
//     if (!watch) {
//         return;  // nothing of the control may be touched
//     }
//
// A watch is a few stores and no allocation. Token and watches live on one thread.

#pragma once

#include <new>
#include <utility>

namespace qv {

class AliveWatch;

// A member of the object that is watched.
class AliveToken {
public:
    AliveToken() = default;
    inline ~AliveToken();
    AliveToken(const AliveToken&) = delete;
    AliveToken& operator=(const AliveToken&) = delete;

private:
    friend class AliveWatch;
    mutable AliveWatch* m_pLast = nullptr;
};

// The compiler does not see that a watch takes itself off its token again.
#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdangling-pointer"
#endif

// False once the token's object is gone.
class AliveWatch {
public:
    explicit AliveWatch(const AliveToken& token) : m_pToken(&token), m_pBefore(token.m_pLast) {
        if (m_pBefore != nullptr) {
            m_pBefore->m_pAfter = this;
        }
        token.m_pLast = this;
    }
    ~AliveWatch() {
        if (m_pToken == nullptr) {
            return;
        }
        (m_pAfter != nullptr ? m_pAfter->m_pBefore : m_pToken->m_pLast) = m_pBefore;
        if (m_pBefore != nullptr) {
            m_pBefore->m_pAfter = m_pAfter;
        }
    }
    AliveWatch(const AliveWatch&) = delete;
    AliveWatch& operator=(const AliveWatch&) = delete;

    bool ObjectAlive() const { return m_pToken != nullptr; }
    explicit operator bool() const { return ObjectAlive(); }

private:
    friend class AliveToken;
    const AliveToken* m_pToken;
    AliveWatch* m_pBefore;
    AliveWatch* m_pAfter = nullptr;
};

#if defined(__GNUC__) && !defined(__clang__)
#pragma GCC diagnostic pop
#endif

inline AliveToken::~AliveToken() {
    for (AliveWatch* pWatch = m_pLast; pWatch != nullptr; pWatch = pWatch->m_pBefore) {
        pWatch->m_pToken = nullptr;
    }
}

// False also once the object's window is gone, and from the start if there is none. hWnd is the
// object's member that holds the window's handle.
template <class Handle>
class WindowWatch : public AliveWatch {
public:
    WindowWatch(const AliveToken& token, const Handle& hWnd)
        : AliveWatch(token), m_hNow(hWnd), m_hThen(hWnd) {}
    explicit operator bool() const {
        return ObjectAlive() && m_hThen != Handle() && m_hNow == m_hThen;
    }

private:
    const Handle& m_hNow;
    const Handle m_hThen;
};

// Sets a variable of the watched object until the end of the scope, and puts its value back.
template <class Value>
class SetWhileAlive {
public:
    SetWhileAlive(const AliveToken& token, Value& variable, Value value)
        : m_watch(token), m_variable(variable), m_old(std::exchange(variable, value)) {}
    ~SetWhileAlive() {
        if (m_watch.ObjectAlive()) {
            m_variable = m_old;
        }
    }
    SetWhileAlive(const SetWhileAlive&) = delete;
    SetWhileAlive& operator=(const SetWhileAlive&) = delete;

private:
    const AliveWatch m_watch;
    Value& m_variable;
    const Value m_old;
};

// A guard over a part of the watched object. It puts nothing back once the object is gone, and the
// part with it.
template <class Guard>
class WhileAlive {
public:
    template <class... Args>
    explicit WhileAlive(const AliveWatch& watch, Args&&... args) : m_watch(watch) {
        new (&m_guard) Guard(std::forward<Args>(args)...);
    }
    ~WhileAlive() {
        if (m_watch.ObjectAlive()) {
            m_guard.~Guard();
        }
    }
    WhileAlive(const WhileAlive&) = delete;
    WhileAlive& operator=(const WhileAlive&) = delete;

private:
    const AliveWatch& m_watch;
    union {
        Guard m_guard;
    };
};

}  // namespace qv
