#include "FuzzFailure.h"

#include <cstdio>
#include <cstdlib>

void FuzzFailure::report(const QString& problem)
{
    std::fprintf(stderr, "==FUZZ FAILURE== %s\n", problem.toLocal8Bit().constData());
    std::fflush(stderr);
    std::abort();
}

void FuzzFailure::check(const QString& problem)
{
    if (!problem.isEmpty())
        report(problem);
}
