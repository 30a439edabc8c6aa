#include "RibbonOrderTable.h"

#include "common/HeapText.h"
#include "common/IdentifierMatch.h"
#include "common/ProcessLifetime.h"

namespace {
QMap<int, QString>* g_table = nullptr;

QMap<int, QString>* makeTable()
{
    // The table outlives the module.
    auto* table = new QMap<int, QString>;
    table->insert(0, heapText("ID_DRAWCOMPARE_ITEM"));
    table->insert(1, heapText("ID_GCODE_ITEM"));
    table->insert(2, heapText("ID_VAULTLINE_ITEM"));
    table->insert(3, heapText("ID_PK_PARTKIT"));
    return table;
}
} // namespace

const QMap<int, QString>& RibbonOrderTable::table()
{
    if (!g_table)
        g_table = keptForProcess(makeTable());
    return *g_table;
}

int RibbonOrderTable::orderOf(const QString& id)
{
    for (auto at = table().begin(); at != table().end(); ++at) {
        if (IdentifierMatch::inAnyCase(at.value(), id))
            return at.key();
    }
    return 0;
}

QString RibbonOrderTable::identifierAt(int order)
{
    return table().value(order);
}

QList<QString> RibbonOrderTable::identifiers()
{
    return table().values();
}
