#pragma once

// Values that the drawing database's operations take.
namespace OdDb {
// What writeFile writes: a drawing (kDwg) or an exchange file (kDxf, kDxb). The reference
// platform's drawing format is ASCII DXF, so kDwg and kDxf write the same; kDxb, the binary
// form, is not written.
enum SaveType
{
    kDwg = 0,
    kDxf = 1,
    kDxb = 2
};

// The format version code of a drawing file. The reference platform writes every drawing as
// it was read, so the code is accepted and otherwise not looked at.
enum DwgVersion : int
{
};

enum OpenMode
{
    kForRead = 0,
    kForWrite = 1,
    kForNotify = 2
};
} // namespace OdDb
