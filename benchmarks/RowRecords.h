#pragma once

#include <ExtCommands/RibbonItem.h>

#include <memory>
#include <vector>

// The records of one row: N top-level buttons, each (when `split`) a split button holding a
// command, a separator and a split button of two commands: five nested entries each.
class RowRecords
{
public:
    RowRecords(int count, bool split);

    const std::vector<RibbonItem*>& top() const { return m_top; }

private:
    RibbonItem* add(RibbonItem item);
    RibbonItem* addChild(RibbonItem* parent, const QString& id, const QString& type);

    std::vector<std::unique_ptr<RibbonItem>> m_owned;
    std::vector<RibbonItem*> m_top;
};
