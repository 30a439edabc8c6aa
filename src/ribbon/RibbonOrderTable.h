#pragma once

#include <QMap>
#include <QString>

// The fixed order of the buttons of the data-management family in the Add-Ins row:
// "ID_DRAWCOMPARE_ITEM", "ID_GCODE_ITEM", "ID_VAULTLINE_ITEM", "ID_PK_PARTKIT", at 0 to 3.
// Made on first use and kept until the process ends.
class RibbonOrderTable
{
public:
    // The order of `id` (in any letter case); 0 for an identifier outside the table.
    static int orderOf(const QString& id);
    // The identifier at `order`; empty outside the table.
    static QString identifierAt(int order);
    // The identifiers, in their order.
    static QList<QString> identifiers();

private:
    static const QMap<int, QString>& table();
};
