#pragma once

#include "OdRxObject.h"
#include "OdString.h"
#include "TD_RootExport.h"

// How a running command asks the user for input and tells the user something.
class TD_ROOT_EXPORT OdEdUserIO : public OdRxObject
{
public:
    ~OdEdUserIO() override;

    // The user's answer to `prompt`; `defaultValue` when the user just presses Enter.
    virtual OdString getString(const OdString& prompt,
                               const OdString& defaultValue = OdString::kEmpty) = 0;
    // An integer answer; throws OdError when the answer is not a whole number.
    virtual int getInt(const OdString& prompt, int defaultValue = 0) = 0;
    virtual void putString(const OdString& text) = 0;
};
