#pragma once

#include "CFxString.h"
#include "FxKernelExport.h"

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
    void SetIdentifier(const CFxString& identifier) { m_identifier = identifier; }

private:
    CFxString m_identifier;
};
