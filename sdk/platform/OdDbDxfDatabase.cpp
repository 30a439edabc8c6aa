#include "OdDbDxfDatabase.h"

#include "OdDxfGroupStream.h"
#include "OdDxfReader.h"
#include "OdDxfWriter.h"
#include "OdError.h"
#include "OdRxObjectImpl.h"
#include "OdRxSystemServices.h"

#include <QFileInfo>

#include <limits>
#include <utility>

namespace {
QByteArray readAll(OdStreamBuf& stream)
{
    QByteArray content;
    const std::uint64_t length = stream.length();
    if (length > static_cast<std::uint64_t>(std::numeric_limits<int>::max() / 2))
        throw OdError(toOdString(
            QStringLiteral("%1 is too large to be a drawing").arg(toQString(stream.fileName()))));
    content.resize(static_cast<int>(length));
    if (length > 0)
        stream.getBytes(content.data(), static_cast<std::uint32_t>(length));
    return content;
}

// The block record of a BLOCK entity's groups [begin, end).
class BlockGroups
{
public:
    BlockGroups(const std::vector<OdDxfGroup>& groups, std::size_t begin, std::size_t end)
    {
        for (std::size_t at = begin; at < end; ++at)
            take(groups[at]);
    }

    OdString name;
    int flags = 0;
    OdString pathName;

private:
    void take(const OdDxfGroup& group)
    {
        if (group.code() == 2 && !m_named) {
            name = toOdString(group.text());
            m_named = true;
        } else if (group.code() == 70) {
            flags = group.toInt();
        } else if (group.code() == 1) {
            pathName = toOdString(group.text());
        }
    }

    bool m_named = false;
};

class BlockRecord : public OdDbBlockTableRecord
{
public:
    BlockRecord(OdDbObjectId id, const BlockGroups& block)
        : OdDbBlockTableRecord(id, block.name, block.flags,
                               block.flags & kExternalReference ? block.pathName : OdString())
    {}
};
} // namespace

OdDbDxfDatabase::OdDbDxfDatabase(OdString fileName, std::vector<OdDxfGroup> groups,
                                 QByteArray lineEnding)
    : m_fileName(std::move(fileName)), m_groups(std::move(groups)),
      m_lineEnding(std::move(lineEnding))
{
    readBlocks();
}

OdDbDxfDatabase::~OdDbDxfDatabase() = default;

OdDbDxfDatabasePtr OdDbDxfDatabase::readFile(const OdString& path)
{
    const QString absolute = QFileInfo(toQString(path)).absoluteFilePath();
    QByteArray content;
    {
        OdStreamBufPtr stream = odSystemServices()->createFile(
            toOdString(absolute), Oda::kFileRead, Oda::kShareDenyWrite, Oda::kOpenExisting);
        content = readAll(*stream);
    }
    std::vector<OdDxfGroup> groups = OdDxfReader::read(content, absolute);
    return OdDbDxfDatabasePtr(new OdRxObjectImpl<OdDbDxfDatabase>(
        toOdString(absolute), std::move(groups), OdDxfReader::lineEnding(content)));
}

OdDbDxfDatabasePtr OdDbDxfDatabase::readReferences(const OdString& path)
{
    const QString absolute = QFileInfo(toQString(path)).absoluteFilePath();
    OdStreamBufPtr stream = odSystemServices()->createFile(
        toOdString(absolute), Oda::kFileRead, Oda::kShareDenyWrite, Oda::kOpenExisting);
    OdDxfGroupStream reader(*stream, absolute);
    std::vector<OdDxfGroup> kept{{0, "SECTION"}, {2, "BLOCKS"}};
    OdDxfGroup group(0, QByteArray());
    bool sectionNamed = true;
    bool inBlocks = false;
    bool inBlockHeader = false;
    while (reader.next(group)) {
        if (!sectionNamed) {
            sectionNamed = true;
            inBlocks = group.code() == 2 && group.value().trimmed() == "BLOCKS";
        }
        if (group.code() == 0) {
            if (inBlocks && group.isStart("ENDSEC"))
                break;
            sectionNamed = !group.isStart("SECTION");
            inBlockHeader = inBlocks && group.isStart("BLOCK");
        }
        if (inBlockHeader)
            kept.push_back(std::move(group));
    }
    kept.emplace_back(0, "ENDSEC");
    kept.emplace_back(0, "EOF");
    return OdDbDxfDatabasePtr(new OdRxObjectImpl<OdDbDxfDatabase>(
        toOdString(absolute), std::move(kept), QByteArray("\n")));
}

OdDbDxfDatabasePtr OdDbDxfDatabase::cast(const OdRxObject* object)
{
    return OdDbDxfDatabasePtr(dynamic_cast<OdDbDxfDatabase*>(const_cast<OdRxObject*>(object)));
}

void OdDbDxfDatabase::writeFile(OdStreamBuf* stream, OdDb::SaveType fileType, OdDb::DwgVersion,
                                bool, int) const
{
    if (!stream)
        throw OdError(OdString(L"no stream to write the drawing into"));
    if (fileType != OdDb::kDwg && fileType != OdDb::kDxf)
        throw OdError(
            toOdString(QStringLiteral("%1: file type %2 is not written, only drawings (0) "
                                      "and ASCII DXF (1)")
                           .arg(toQString(stream->fileName()))
                           .arg(static_cast<int>(fileType))));
    const QByteArray content = OdDxfWriter::write(m_groups, m_lineEnding);
    stream->putBytes(content.constData(), static_cast<std::uint32_t>(content.size()));
}

OdDbObjectId OdDbDxfDatabase::blockRecordId(int index)
{
    return index >= 0 && index < numBlockRecords() ? OdDbObjectId(this, index) : OdDbObjectId();
}

OdDbObjectPtr OdDbDxfDatabase::objectAt(int index) const
{
    if (index < 0 || index >= numBlockRecords())
        return {};
    return OdDbObjectPtr(m_blocks[static_cast<std::size_t>(index)].get());
}

void OdDbDxfDatabase::readBlocks()
{
    bool inBlocks = false;
    std::size_t blockStart = m_groups.size();
    for (std::size_t at = 0; at < m_groups.size(); ++at) {
        const OdDxfGroup& group = m_groups[at];
        if (group.code() != 0)
            continue;
        if (blockStart < at)
            addBlock(blockStart, at);
        blockStart = m_groups.size();
        if (group.isStart("ENDSEC"))
            inBlocks = false;
        else if (group.isStart("SECTION") && at + 1 < m_groups.size())
            inBlocks =
                m_groups[at + 1].code() == 2 && m_groups[at + 1].value().trimmed() == "BLOCKS";
        else if (inBlocks && group.isStart("BLOCK"))
            blockStart = at + 1;
    }
}

void OdDbDxfDatabase::addBlock(std::size_t begin, std::size_t end)
{
    const OdDbObjectId id(this, numBlockRecords());
    m_blocks.emplace_back(new OdRxObjectImpl<BlockRecord>(id, BlockGroups(m_groups, begin, end)));
}
