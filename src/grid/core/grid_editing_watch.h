// Watches a grid over a step that leads out of it.

#pragma once

#include "grid/core/grid_editing.h"

namespace qv {

// False also once the grid's window is another one or gone. A grid that has none yet is watched for
// its life alone.
class GridEditing::Watch : public AliveWatch {
public:
    explicit Watch(const GridEditing& editing)
        : AliveWatch(editing.m_alive), m_host(editing.m_host), m_pWindow(m_host.Window()) {}
    explicit operator bool() const { return ObjectAlive() && m_host.Window() == m_pWindow; }

private:
    const GridHostPort& m_host;
    const void* m_pWindow;
};

}  // namespace qv
