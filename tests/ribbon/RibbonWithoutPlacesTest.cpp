// The exported ribbon functions in a host whose model lacks the places they act on: a sibling's
// call changes nothing there and tells nothing, as every failure of the module is silent.
#include "RibbonHost.h"
#include "TestPrinters.h"

#include <gtest/gtest.h>

#include <CFxHostUI.h>
#include <CFxUIJsonWriter.h>

namespace {
QByteArray model(const RibbonHost& host)
{
    return CFxUIJsonWriter::writeText(host.ui(), true);
}

// Every call a sibling can make, each with something it could act on where the model has it.
void callEverything(RibbonHost& host)
{
    RibbonItem item = record("ID_SIBLING_TOOL", "split");
    host.load(&item, 0);
    host.load(nullptr, 0);
    host.setVisibility("ID_SIBLING_TOOL", false);
    host.unload("ID_SIBLING_TOOL");
    host.loadExportTable();
    host.unloadExportTable();
}
} // namespace

TEST(RibbonWithoutPlaces, AModelWithoutAMainGroupIsLeftAsItIs)
{
    RibbonHost host;
    CFxHostUI::SetMainGroup(host.mainGroup(), false);
    const QByteArray before = model(host);
    const QStringList eventsBefore = host.events().names();
    callEverything(host);
    EXPECT_EQ(model(host), before);
    EXPECT_EQ(host.events().names(), eventsBefore);
}

TEST(RibbonWithoutPlaces, AnEmptyApplicationMenuGetsNoExportTableEntry)
{
    RibbonHost host;
    CFxUIList<CFxUIRibbonSystemMenuItem>& menu = host.mainGroup().GetApplicationMenu();
    while (menu.GetCount() > 0)
        menu.Remove(menu.GetAt(0));
    host.loadExportTable();
    EXPECT_EQ(menu.GetCount(), 0);
    host.unloadExportTable();
    EXPECT_EQ(menu.GetCount(), 0);
}

TEST(RibbonWithoutPlaces, VisibilityBeforeAnyButtonWasLoadedChangesNothing)
{
    RibbonHost host;
    const QByteArray before = model(host);
    host.setVisibility("ID_VL_OPEN", false);
    EXPECT_EQ(model(host), before);
    EXPECT_EQ(host.addInsRow(), nullptr);
}
