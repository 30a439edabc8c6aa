#pragma once

// The platform API version that modules are built against. The dynamic linker refuses a
// module whose major or minor number differs from its own.
#define ODRX_API_MAJOR 4
#define ODRX_API_MINOR 1
#define ODRX_API_FIX 1
#define ODRX_API_BUILD 72561
