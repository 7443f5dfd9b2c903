// Whether an object is still there after somebody outside was told something. Internal to the
// framework.
#pragma once

/// A member of the object that is watched.
class AfxLife {
public:
    AfxLife() = default;
    ~AfxLife() {
        if (m_pbGone != nullptr) {
            *m_pbGone = true;
        }
    }
    AfxLife(const AfxLife&) = delete;
    AfxLife& operator=(const AfxLife&) = delete;

private:
    friend class AfxLifeWatch;
    bool* m_pbGone = nullptr;  ///< of the innermost watch
};

/// False once the object is gone. Watches lie on the stack, one within the other.
class AfxLifeWatch {
public:
    // Out of line: the compiler would warn, which does not see that a watch takes itself off again.
    [[gnu::noinline]] explicit AfxLifeWatch(AfxLife& life) : m_life(life), m_pbOuter(life.m_pbGone) {
        life.m_pbGone = &m_bGone;
    }
    ~AfxLifeWatch() {
        if (!m_bGone) {
            m_life.m_pbGone = m_pbOuter;
        } else if (m_pbOuter != nullptr) {
            *m_pbOuter = true;
        }
    }
    AfxLifeWatch(const AfxLifeWatch&) = delete;
    AfxLifeWatch& operator=(const AfxLifeWatch&) = delete;
    explicit operator bool() const { return !m_bGone; }

private:
    AfxLife& m_life;
    bool* const m_pbOuter;
    bool m_bGone = false;
};
