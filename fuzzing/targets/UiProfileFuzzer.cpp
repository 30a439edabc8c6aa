// The kernel's UI profile reader, given any JSON text. A profile is either refused with an
// OdError or read into a model; a model read from a profile, written out and read again,
// writes out the same (the reader and the writer agree on every field).
#include "FuzzEnvironment.h"
#include "FuzzFailure.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <CFxHostUI.h>
#include <CFxUIJsonReader.h>
#include <CFxUIJsonWriter.h>
#include <OdError.h>

#include <cstddef>
#include <cstdint>

namespace {
QByteArray written(const CFxHostUI& ui)
{
    return QJsonDocument(CFxUIJsonWriter::write(ui)).toJson(QJsonDocument::Compact);
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    FuzzEnvironment::prepare(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QJsonDocument document = QJsonDocument::fromJson(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size)));
    if (!document.isObject())
        return 0;
    CFxHostUI first;
    try {
        CFxUIJsonReader::read(document.object(), first);
    } catch (const OdError&) {
        return 0;
    }
    const QByteArray once = written(first);
    CFxHostUI second;
    try {
        CFxUIJsonReader::read(QJsonDocument::fromJson(once).object(), second);
    } catch (const OdError& error) {
        FuzzFailure::report(QStringLiteral("the reader refuses what the writer wrote: ") +
                            QString::fromStdString(error.what()));
    }
    if (written(second) != once)
        FuzzFailure::report(QStringLiteral("a profile read, written and read again changed"));
    return 0;
}
