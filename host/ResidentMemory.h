#pragma once

// The host's own resident memory, as the operating system counts it, for long runs that must
// show that nothing grows.
class ResidentMemory
{
public:
    // Kilobytes resident now; -1 where the system does not tell.
    static long long kilobytes();
};
