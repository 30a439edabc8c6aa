// The two entry points through which the platform loads this module.
#include "CExtCommandsModule.h"

#include <RxDynamicModule.h>

ODRX_DEFINE_DYNAMIC_MODULE(CExtCommandsModule)
