#pragma once

#include <QString>

// What every fuzz program sets up once, before its first input: a private home with its own
// configuration and data folders (nothing the program does reaches the real home), the
// offscreen platform, and the application object that the kernel's widgets and translators need.
class FuzzEnvironment
{
public:
    static void prepare(int* argc, char*** argv);
    // The private home; a folder of its own that lives as long as the program.
    static QString home();
    // A new, empty folder under the private home.
    static QString freshFolder();
};
