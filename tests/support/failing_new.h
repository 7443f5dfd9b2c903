// Makes the program's heap run out of memory at will.

#pragma once

// From construction on, the first nSucceeding allocations succeed and all later ones fail, until
// the object goes.
class FailingNew {
public:
    explicit FailingNew(int nSucceeding);
    ~FailingNew();
    FailingNew(const FailingNew&) = delete;
    FailingNew& operator=(const FailingNew&) = delete;
};
