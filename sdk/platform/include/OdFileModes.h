#pragma once

// How a file is opened through the platform's system services. The values are Windows' own
// (the access rights, the C runtime's share flags and the creation dispositions), so that they
// reach the system unchanged there and a caller may pass either the names or the plain numbers.
namespace Oda {
enum FileAccessMode : unsigned int
{
    kFileRead = 0x80000000u,
    kFileWrite = 0x40000000u
};

enum FileShareMode : unsigned int
{
    kShareDenyReadWrite = 0x10,
    kShareDenyWrite = 0x20,
    kShareDenyRead = 0x30,
    kShareDenyNo = 0x40
};

enum FileCreationDisposition : unsigned int
{
    // Fails when the file exists.
    kCreateNew = 1,
    // Creates the file, or empties it when it exists.
    kCreateAlways = 2,
    // Fails when the file does not exist.
    kOpenExisting = 3,
    // Opens the file, or creates it when it does not exist.
    kOpenAlways = 4,
    // Empties the file; fails when it does not exist.
    kTruncateExisting = 5
};
} // namespace Oda
