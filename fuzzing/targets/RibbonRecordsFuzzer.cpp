// The sample sibling's record reader, given any text. It either refuses the text with a reason
// or gives records that it owns, each once; the records written out as JSON and read again
// write out the same (nothing is lost, changed or shifted between fields or levels).
#include "FuzzEnvironment.h"
#include "FuzzFailure.h"
#include "RibbonRecordJson.h"
#include "RibbonRecordParser.h"

#include <cstddef>
#include <cstdint>
#include <set>

namespace {
QString problemWithOwnership(const std::vector<std::unique_ptr<RibbonItem>>& owned,
                             const QList<RibbonItem*>& records)
{
    std::set<const RibbonItem*> all;
    for (const auto& record : owned)
        all.insert(record.get());
    std::set<const RibbonItem*> reached;
    std::vector<const QList<RibbonItem*>*> lists{&records};
    while (!lists.empty()) {
        const QList<RibbonItem*>* list = lists.back();
        lists.pop_back();
        for (const RibbonItem* record : *list) {
            if (!all.count(record))
                return QStringLiteral("a record that the reader does not own");
            if (!reached.insert(record).second)
                return QStringLiteral("a record reached twice");
            lists.push_back(&record->children);
        }
    }
    return reached.size() == all.size() ? QString()
                                        : QStringLiteral("a record read but not in the list");
}

bool parse(const QString& text, std::vector<std::unique_ptr<RibbonItem>>& owned,
           QList<RibbonItem*>& records)
{
    RibbonRecordParser parser(text);
    const bool read = parser.parse(owned, records);
    if (read != parser.error().isEmpty())
        FuzzFailure::report(QStringLiteral("the reader's answer and its error disagree"));
    return read;
}
} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    FuzzEnvironment::prepare(argc, argv);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    std::vector<std::unique_ptr<RibbonItem>> owned;
    QList<RibbonItem*> records;
    if (!parse(QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size)),
               owned, records))
        return 0;
    FuzzFailure::check(problemWithOwnership(owned, records));
    const QString once = RibbonRecordJson::write(records);
    std::vector<std::unique_ptr<RibbonItem>> ownedAgain;
    QList<RibbonItem*> again;
    if (!parse(once, ownedAgain, again))
        FuzzFailure::report(QStringLiteral("the reader refuses records written out: ") + once);
    if (RibbonRecordJson::write(again) != once)
        FuzzFailure::report(QStringLiteral("records written out and read again changed"));
    return 0;
}
