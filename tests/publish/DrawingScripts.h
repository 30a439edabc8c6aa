#pragma once

#include <QString>

// The ezdxf scripts beside the tests, run with the system's Python (the one that has ezdxf).
class DrawingScripts
{
public:
    // make-drawings.py: writes the test drawings into `folder`; throws when it fails.
    static void make(const QString& folder);
    // check-drawing.py: empty when ezdxf audits `copy` without errors and finds it equal,
    // group for group, to `source`; otherwise what the script found.
    static QString check(const QString& copy, const QString& source);

private:
    static int run(const QString& script, const QStringList& arguments, QString& output);
};
