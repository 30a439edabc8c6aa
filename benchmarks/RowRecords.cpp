#include "RowRecords.h"

#include "RibbonHost.h"

#include <utility>

RowRecords::RowRecords(int count, bool split)
{
    for (int i = 0; i < count; ++i) {
        const QString id = QStringLiteral("ID_BENCH_%1").arg(i);
        RibbonItem* top =
            add(record(id, split ? QStringLiteral("split") : QStringLiteral("command")));
        m_top.push_back(top);
        if (!split)
            continue;
        addChild(top, id + QStringLiteral("_RUN"), QStringLiteral("command"));
        addChild(top, QString(), QStringLiteral("separator"));
        RibbonItem* more = addChild(top, id + QStringLiteral("_MORE"), QStringLiteral("split"));
        addChild(more, id + QStringLiteral("_A"), QStringLiteral("command"));
        addChild(more, id + QStringLiteral("_B"), QStringLiteral("command"));
    }
}

RibbonItem* RowRecords::add(RibbonItem item)
{
    m_owned.push_back(std::make_unique<RibbonItem>(std::move(item)));
    return m_owned.back().get();
}

RibbonItem* RowRecords::addChild(RibbonItem* parent, const QString& id, const QString& type)
{
    RibbonItem* child = add(record(id, type));
    parent->children.append(child);
    return child;
}
