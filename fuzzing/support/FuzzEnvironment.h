#pragma once

#include <QString>

// What every fuzz program sets up once, before its first input: a private home with its own
// configuration and data folders (nothing the program does reaches the real home), the
// offscreen platform, and the application object that the kernel's widgets and translators need.
//
// The private home lies in the temporary folder (TMPDIR), which ./fuzz puts in memory: a
// program that writes its inputs to files then writes no disk.
class FuzzEnvironment
{
public:
    static void prepare(int* argc, char*** argv);
    // The private home; a folder of its own that lives as long as the program.
    static QString home();
    // The folder where a program writes the files of its inputs, the same for every input, so
    // that an input's files always have the same names.
    static QString inputFolder();
};
