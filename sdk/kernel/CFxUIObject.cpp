#include "CFxUIObject.h"

CFxUIObject::CFxUIObject(const CFxString& identifier) : m_identifier(identifier) {}

CFxUIObject::~CFxUIObject() = default;
