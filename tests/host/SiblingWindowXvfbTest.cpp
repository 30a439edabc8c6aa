// The window on a real X server while the sample sibling loads, hides, shows and unloads its
// buttons: what the ribbon shows follows the model at the end of each statement, and after a
// sibling's unload and load cycle the window shows the tab that holds the reloaded buttons. The
// sample puts its own button, "Sample", into the Add-Ins row when a main window is created.
#include "HostWindow.h"
#include "HostWindowOnX.h"
#include "TestPrinters.h"

#include <QAction>
#include <QCoreApplication>
#include <QMenu>
#include <QTabWidget>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <CFxHostUI.h>

namespace {
const QStringList kProfileTabs{"Home", "Insert", "View"};
const QStringList kRecords{"Sync", "Vaultline"};
const QStringList kLoaded = kRecords + QStringList{"Sample"};
const QStringList kVaultlineEntries{"Check In", "Check Out", "More"};

class HostWindowWithSiblingOnX : public HostWindowOnX
{
protected:
    QStringList startModules() const override
    {
        return {QStringLiteral("ExtCommands"), QStringLiteral("SampleSibling")};
    }

    void load()
    {
        run(QStringLiteral("SAMPLELOAD " EC_SOURCE_DIR "/samples/records/vaultline.json 0"));
    }

    QTabWidget* tabs() const
    {
        return window()->findChild<QTabWidget*>(QStringLiteral("RibbonTabs"));
    }

    QStringList tabTexts() const
    {
        QStringList texts;
        for (int at = 0; at < tabs()->count(); ++at)
            texts << tabs()->tabText(at);
        return texts;
    }

    // Brings the tab captioned `caption` to the front, as a click on it does, and gives the
    // texts of the buttons on screen there, in their order.
    QStringList buttonsShownOn(const QString& caption)
    {
        const int index = tabTexts().indexOf(caption);
        if (index < 0) {
            ADD_FAILURE() << "no tab " << qPrintable(caption);
            return {};
        }
        tabs()->setCurrentIndex(index);
        settleWidgets();
        QStringList texts;
        for (const QToolButton* button : tabs()->widget(index)->findChildren<QToolButton*>()) {
            if (button->isVisible())
                texts << button->text();
        }
        return texts;
    }

    // The entries the split button `identifier` of the tab in front lists when it opens.
    QStringList entriesOf(const QString& identifier)
    {
        settleWidgets();
        for (QToolButton* button :
             tabs()->currentWidget()->findChildren<QToolButton*>(identifier)) {
            if (!button->isVisible() || !button->menu())
                continue;
            emit button->menu()->aboutToShow();
            QStringList texts;
            for (const QAction* action : button->menu()->actions()) {
                if (!action->isSeparator())
                    texts << action->text();
            }
            return texts;
        }
        ADD_FAILURE() << "no split button " << qPrintable(identifier) << " on screen";
        return {};
    }

    // How often the workspace lists the Add-Ins tab's identifier.
    int addInsTabsListed() const
    {
        int count = 0;
        for (const CFxUIRibbonTab* tab :
             ui().FindWorkspace(CFxString(QStringLiteral("Drafting and Annotation")))
                 ->GetRibbonTabs())
            count += tab->GetIdentifier().toQString() == QLatin1String("ID_RibbonAddInsTab");
        return count;
    }

private:
    // Widgets made for a page show, and those replaced go, at the next turn of the event loop.
    static void settleWidgets()
    {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
};
} // namespace

TEST_F(HostWindowWithSiblingOnX, ButtonsLoadedWhileTheWindowStandsAreShown)
{
    EXPECT_EQ(buttonsShownOn("Add-Ins"), QStringList{"Sample"}) << "loaded with the window";
    load();
    EXPECT_EQ(buttonsShownOn("Add-Ins"), kLoaded) << "the tab in front, at the statement's end";
    EXPECT_EQ(entriesOf("ID_VAULTLINE_ITEM"), kVaultlineEntries);

    // Changed while another tab is in front: shown when the tab comes to the front.
    tabs()->setCurrentIndex(0);
    run("SAMPLEUNLOAD ID_VL_SYNC");
    EXPECT_EQ(buttonsShownOn("Add-Ins"), QStringList({"Vaultline", "Sample"}));
}

TEST_F(HostWindowWithSiblingOnX, EntriesHiddenAndShownAgainFollowTheModel)
{
    load();
    ASSERT_EQ(buttonsShownOn("Add-Ins"), kLoaded);
    // Opened once, the list is filled; what follows must replace it.
    ASSERT_EQ(entriesOf("ID_VAULTLINE_ITEM"), kVaultlineEntries);
    run("SAMPLEVISIBILITY ID_VL_CHECKOUT 0");
    EXPECT_EQ(entriesOf("ID_VAULTLINE_ITEM"), QStringList({"Check In", "More"}));
    run("SAMPLEVISIBILITY id_vl_checkout 1");
    EXPECT_EQ(entriesOf("ID_VAULTLINE_ITEM"), kVaultlineEntries);
}

// Kept: docs/lifecycle.md, row "Siblings' buttons".
TEST_F(HostWindowWithSiblingOnX, ButtonsLoadedAgainAfterTheLastWasUnloadedAreShown)
{
    load();
    ASSERT_EQ(buttonsShownOn("Add-Ins"), kLoaded);
    run("SAMPLEUNLOAD ID_VL_SYNC");
    run("SAMPLEUNLOAD ID_VAULTLINE_ITEM");
    run("SAMPLEUNLOAD ID_SAMPLE_ITEM");
    EXPECT_EQ(tabTexts(), kProfileTabs) << "the emptied tab left the ribbon";

    load();
    ASSERT_EQ(addInsTabsListed(), 2) << "the old tab stays in the workspace beside the new one";
    EXPECT_EQ(tabTexts(), kProfileTabs + QStringList({"Add-Ins"}));
    EXPECT_EQ(buttonsShownOn("Add-Ins"), kRecords);
    EXPECT_EQ(entriesOf("ID_VAULTLINE_ITEM"), kVaultlineEntries);

    // A new main window shows the same, and the sample's own button, loaded with it (a button
    // that is not of the fixed order goes first).
    run("mainframe destroy");
    run("mainframe create");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window()));
    EXPECT_EQ(tabTexts(), kProfileTabs + QStringList({"Add-Ins"}));
    EXPECT_EQ(buttonsShownOn("Add-Ins"), QStringList{"Sample"} + kRecords);
}
