#include "OdError.h"

#include <QString>

OdError::OdError(const OdString& description)
    : m_description(description), m_utf8(toQString(description).toUtf8().toStdString())
{}

OdError::~OdError() = default;
