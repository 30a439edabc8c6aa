#pragma once

#include "OdString.h"
#include "TD_RootExport.h"

#include <exception>
#include <string>

// What the platform throws when a request cannot be carried out (a module that cannot be
// loaded, a duplicate command); a module never throws it on purpose.
class TD_ROOT_EXPORT OdError : public std::exception
{
public:
    explicit OdError(const OdString& description);
    ~OdError() override;

    const OdString& description() const { return m_description; }
    const char* what() const noexcept override { return m_utf8.c_str(); }

private:
    OdString m_description;
    std::string m_utf8;
};
