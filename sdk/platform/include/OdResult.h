#pragma once

// Result codes of platform operations that report failure by value.
enum OdResult
{
    eOk = 0,
    eNullObjectPointer = 5
};
