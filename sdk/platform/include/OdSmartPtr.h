#pragma once

#include "OdRxObject.h"

#include <cstddef>
#include <utility>

// Tag for taking over a reference that the caller already holds.
enum OdRxObjMod
{
    kOdRxObjAttach
};

// Intrusive smart pointer: holds one reference to the object it points to.
template <class T>
class OdSmartPtr
{
public:
    OdSmartPtr() = default;
    OdSmartPtr(std::nullptr_t) {}
    OdSmartPtr(T* object) : m_object(object) { acquire(); }
    OdSmartPtr(T* object, OdRxObjMod) : m_object(object) {}
    OdSmartPtr(const OdSmartPtr& other) : m_object(other.m_object) { acquire(); }
    OdSmartPtr(OdSmartPtr&& other) noexcept : m_object(std::exchange(other.m_object, nullptr)) {}
    template <class U>
    OdSmartPtr(const OdSmartPtr<U>& other) : m_object(other.get())
    {
        acquire();
    }
    ~OdSmartPtr() { release(); }

    OdSmartPtr& operator=(OdSmartPtr other) noexcept
    {
        std::swap(m_object, other.m_object);
        return *this;
    }

    void release()
    {
        if (T* object = std::exchange(m_object, nullptr))
            object->release();
    }

    T* get() const { return m_object; }
    T* operator->() const { return m_object; }
    T& operator*() const { return *m_object; }
    bool isNull() const { return m_object == nullptr; }
    explicit operator bool() const { return m_object != nullptr; }

    friend bool operator==(const OdSmartPtr& a, const OdSmartPtr& b)
    {
        return a.m_object == b.m_object;
    }
    friend bool operator!=(const OdSmartPtr& a, const OdSmartPtr& b)
    {
        return a.m_object != b.m_object;
    }

private:
    void acquire()
    {
        if (m_object)
            m_object->addRef();
    }

    T* m_object = nullptr;
};

using OdRxObjectPtr = OdSmartPtr<OdRxObject>;
