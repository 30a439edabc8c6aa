#pragma once

#include <QString>
#include <QStringList>

#include <vector>

struct RibbonItem;

// What the sample has put on the ribbon and into the application menu through ExtCommands, so
// that it takes all of it off again when it is unloaded: the host keeps whatever a module leaves
// in its user interface, and a button left behind would run a command that went with the module.
class SampleRibbon
{
public:
    // The sample's own button in the Add-Ins row, "Sample", which runs SAMPLELIST.
    void loadOwnButtons();
    // Loads `record` with `position` and remembers it, with the identifiers of its entries.
    void load(RibbonItem* record, int position);
    void loadExportTable();
    void unloadExportTable();
    // The identifiers of the buttons loaded, in the order in which each was first loaded.
    QStringList loaded() const;
    // Takes off everything loaded, the latest button first. The entries of a split button go
    // before the button: unloading an entry deletes its command, which unloading the split
    // button alone leaves behind, and once the button has gone its row may have gone too.
    void unloadAll();

private:
    struct LoadedButton
    {
        QString id;
        QString tabId;
        QString panelId;
        QString rowId;
        // The entries that have an identifier, nested to any depth, in the order loaded.
        QStringList entries;
    };

    static LoadedButton describe(const RibbonItem& record);
    bool remembers(const LoadedButton& button) const;
    static void unload(const LoadedButton& button);

    std::vector<LoadedButton> m_buttons;
    bool m_exportTable = false;
};
