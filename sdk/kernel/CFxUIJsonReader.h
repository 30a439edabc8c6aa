#pragma once

#include "FxKernelExport.h"

#include <QJsonObject>
#include <QString>

class CFxUI;
class CFxUICommand;
class CFxUIGroup;
class CFxUIRibbonButton;
class CFxUIRibbonSystemMenuItem;
class CFxUIRibbonTab;

// Builds a user-interface model from a UI profile: the JSON that CFxUIJsonWriter writes
// (fields that the writer derives, such as a group's "items" and "panels", are accepted and
// ignored). A profile that does not have that form is refused with an OdError that says where.
class FX_KERNEL_EXPORT CFxUIJsonReader
{
public:
    static void read(const QJsonObject& profile, CFxUI& ui);
    // Reads the profile file at `path`.
    static void readFile(const QString& path, CFxUI& ui);

private:
    explicit CFxUIJsonReader(CFxUI& ui);

    void readGroup(const QJsonObject& json, const QString& path);
    void readMenu(const QJsonObject& json, const QString& path, CFxUIGroup& group);
    CFxUIRibbonTab* readTab(const QJsonObject& json, const QString& path, CFxUIGroup& group);
    CFxUIRibbonButton* readButton(const QJsonObject& json, const QString& path, CFxUIGroup* group);
    CFxUIRibbonSystemMenuItem* readSystemMenuItem(const QJsonObject& json, const QString& path,
                                                  CFxUIGroup* group);
    CFxUICommand* readCommand(const QJsonObject& json, const QString& path, CFxUIGroup* owner);
    CFxUICommand* readAttachedCommand(const QJsonValue& json, const QString& path,
                                      CFxUIGroup* group);
    void readWorkspace(const QJsonObject& json, const QString& path);

    CFxUI& m_ui;
};
