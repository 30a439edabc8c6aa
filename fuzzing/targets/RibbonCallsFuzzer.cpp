// Sequences of calls to the module's exported ribbon interface, as siblings make them. The module
// is loaded once through the platform's dynamic linker and its loaded-item table emptied through
// the same interface before each input (libFuzzer cannot follow a module unloaded and loaded
// again).
#include "FuzzEnvironment.h"
#include "ModuleUnderTest.h"
#include "RibbonCallSequence.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    FuzzEnvironment::prepare(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    FuzzedDataProvider input(data, size);
    ModuleUnderTest module;
    RibbonCallSequence(module, input).play();
    return 0;
}
