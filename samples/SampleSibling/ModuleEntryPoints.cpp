// The two entry points through which the platform loads this module.
#include "SampleSiblingModule.h"

#include <RxDynamicModule.h>

ODRX_DEFINE_DYNAMIC_MODULE(SampleSiblingModule)
