#include "OdError.h"

#include <QString>

OdError::OdError(const OdString& description)
    : m_description(description),
      m_utf8(QString::fromStdWString(description.wide()).toUtf8().toStdString())
{}

OdError::~OdError() = default;
