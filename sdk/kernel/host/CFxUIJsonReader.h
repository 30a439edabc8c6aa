#pragma once

#include "FxKernelExport.h"

#include <QHash>
#include <QJsonObject>
#include <QString>

class CFxHostUI;
class CFxUICommand;
class CFxUIGroup;
class CFxUIRibbonButton;
class CFxUIRibbonSystemMenuItem;
class CFxUIRibbonTab;

// Builds a user-interface model from a UI profile: the JSON that CFxUIJsonWriter writes
// (fields that the writer derives, such as a group's "items" and "panels", are accepted and
// ignored). A profile that does not have that form is refused with an OdError that says where;
// so is a profile that names an object twice where the host looks it up by its identifier (two
// groups, tabs, or menus or commands of one group with the same identifier, in any letter
// case), that has two main groups, or a command with more than two icons of one size. Reading
// takes time in proportion to the profile's size.
class FX_KERNEL_EXPORT CFxUIJsonReader
{
public:
    static void read(const QJsonObject& profile, CFxHostUI& ui);
    // Reads the profile file at `path`.
    static void readFile(const QString& path, CFxHostUI& ui);

private:
    explicit CFxUIJsonReader(CFxHostUI& ui);

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
    // Remembers where `identifier` was first met among `seen`; a second one is refused.
    static void claim(QHash<QString, QString>& seen, const QString& identifier, const QString& path,
                      const char* what);
    static QString key(const QString& identifier);

    CFxHostUI& m_ui;
    QString m_mainGroupPath;
    QHash<QString, QString> m_groupPaths;
    QHash<QString, QString> m_tabPaths;
    QHash<QString, CFxUIRibbonTab*> m_tabs;
    // A group's menus and commands, by the group's key and the object's key.
    QHash<QString, QHash<QString, QString>> m_menuPaths;
    QHash<QString, QHash<QString, QString>> m_commandPaths;
    QHash<QString, QHash<QString, CFxUICommand*>> m_commands;
};
