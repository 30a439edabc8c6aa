#pragma once

#include "OdSmartPtr.h"

#include <atomic>

// A heap object whose last release deletes it.
template <class T>
class OdRxObjectImpl : public T
{
public:
    template <class... Args>
    explicit OdRxObjectImpl(Args&&... args) : T(std::forward<Args>(args)...)
    {}

    template <class... Args>
    static OdSmartPtr<T> createObject(Args&&... args)
    {
        return OdSmartPtr<T>(new OdRxObjectImpl(std::forward<Args>(args)...));
    }

    void addRef() override { ++m_references; }
    void release() override
    {
        if (--m_references == 0)
            delete this;
    }
    long numRefs() const override { return m_references; }

private:
    std::atomic<long> m_references{0};
};
