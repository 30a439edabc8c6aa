#pragma once

#include <QList>
#include <QString>

// A button that a sibling module asks ExtCommands to put on the host's ribbon, with the tab,
// panel and row that hold it and the command it runs.
//
// Siblings build this record themselves and hand it over by pointer, so the fields, their
// order and their types are part of the module's binary interface and never change. The
// sibling owns the record and every record in `children`; ExtCommands reads them only during
// the call and keeps no pointer to any of them.
struct RibbonItem
{
    QString text;        // label of the button
    QString id;          // identifier of the button and of its command
    QString rowId;       // ribbon row that holds the button
    QString tabText;     // caption of the tab, used only when the tab is created
    QString tabId;       // ribbon tab
    QString panelText;   // caption of the panel, used only when the panel is created
    QString panelId;     // ribbon panel
    QString commandName; // the command's macro and name; "ID_" + it is its action identifier
    QString description; // tool tip of the command
    QString largeIcon;   // resource path of the large icon
    QString smallIcon;   // resource path of the small icon
    QList<RibbonItem*> children; // the entries of a split button, nested to any depth
    QString type;                // "command", "split" or "separator" (case matters)
};
