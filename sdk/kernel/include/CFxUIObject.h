#pragma once

#include "CFxString.h"
#include "FxKernelExport.h"

#include <cstdint>

// Base of every object of the host's user-interface model: it has an identifier and is owned
// by the CFxUI that created it.
class FX_KERNEL_EXPORT CFxUIObject
{
public:
    explicit CFxUIObject(const CFxString& identifier);
    virtual ~CFxUIObject();
    CFxUIObject(const CFxUIObject&) = delete;
    CFxUIObject& operator=(const CFxUIObject&) = delete;

    const CFxString& GetIdentifier() const { return m_identifier; }
    // Renaming an object makes every list's identifier index stale (see CFxUIList).
    void SetIdentifier(const CFxString& identifier);

private:
    // How many times any object of the model was renamed in this process: the lists' identifier
    // indexes are current while it stays as it was when they were made.
    template <class T>
    friend class CFxUIList;
    static std::uint64_t identifierChanges();

    CFxString m_identifier;
};
