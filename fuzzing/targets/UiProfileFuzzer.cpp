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
#include <sanitizer/lsan_interface.h>

#include <cstddef>
#include <cstdint>

namespace {
// Qt 5.15's JSON parser drops the containers it has built when it meets a control character
// inside a string deep in a document. The fuzz programs record allocation stacks from frame
// pointers only, which end at the first Qt frame, so no suppression can tell that leak from
// another: what the parser allocates for the input is left out of the leak check here.
QJsonDocument parsed(const std::uint8_t* data, std::size_t size)
{
    const __lsan::ScopedDisabler qtParserLeaks;
    return QJsonDocument::fromJson(
        QByteArray::fromRawData(reinterpret_cast<const char*>(data), static_cast<int>(size)));
}

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
    const QJsonDocument document = parsed(data, size);
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
