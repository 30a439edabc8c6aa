#include "CFxSystemServices.h"

CFxSystemServices::CFxSystemServices() = default;

CFxSystemServices::~CFxSystemServices() = default;
