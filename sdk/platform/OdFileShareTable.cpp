#include "OdFileShareTable.h"

#include "OdFileModes.h"

OdFileShareTable& OdFileShareTable::instance()
{
    static OdFileShareTable table;
    return table;
}

bool OdFileShareTable::denies(unsigned share, unsigned access)
{
    const bool deniesRead = share == Oda::kShareDenyReadWrite || share == Oda::kShareDenyRead;
    const bool deniesWrite = share == Oda::kShareDenyReadWrite || share == Oda::kShareDenyWrite;
    return (deniesRead && (access & Oda::kFileRead)) || (deniesWrite && (access & Oda::kFileWrite));
}

bool OdFileShareTable::admits(const QString& key, unsigned access, unsigned share) const
{
    const auto range = m_open.equal_range(key);
    for (auto open = range.first; open != range.second; ++open) {
        if (denies(open->second.share, access) || denies(share, open->second.access))
            return false;
    }
    return true;
}

void OdFileShareTable::add(const QString& key, unsigned access, unsigned share)
{
    m_open.insert({key, {access, share}});
}

void OdFileShareTable::remove(const QString& key, unsigned access, unsigned share)
{
    const auto range = m_open.equal_range(key);
    for (auto open = range.first; open != range.second; ++open) {
        if (open->second.access == access && open->second.share == share) {
            m_open.erase(open);
            return;
        }
    }
}
