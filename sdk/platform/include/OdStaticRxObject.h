#pragma once

#include <utility>

// Wrapper for an object owned by value: its reference counting does nothing, so handing it
// to the platform or the host never transfers ownership. The owner must take it back out
// of every registry before it is destroyed.
template <class T>
class OdStaticRxObject : public T
{
public:
    template <class... Args>
    explicit OdStaticRxObject(Args&&... args) : T(std::forward<Args>(args)...)
    {}

    void addRef() override {}
    void release() override {}
    long numRefs() const override { return 1; }
};
