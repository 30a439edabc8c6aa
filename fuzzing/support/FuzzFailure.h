#pragma once

#include <QString>

// A broken promise found by a fuzz program: says what it was and aborts, so that libFuzzer
// keeps the input that led to it.
class FuzzFailure
{
public:
    [[noreturn]] static void report(const QString& problem);
    // Reports `problem` when it is not empty.
    static void check(const QString& problem);
};
