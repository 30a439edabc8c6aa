#pragma once

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <ostream>

class CFxHostUI;

// What the tests ask of a user-interface model, in the form in which the host's ui event
// writes it (so that in-process and end-to-end tests read it alike).
class UiModel
{
public:
    explicit UiModel(const QJsonObject& model) : m_model(model) {}
    static UiModel of(const CFxHostUI& ui);

    // The identifiers of the entries of the group's menu of that identifier (exactly).
    QStringList menuEntryIds(const QString& groupId, const QString& menuId = "ID_MnHelp") const;
    // The Help entry of that identifier as written ("id", "text", "statusText", "macro").
    QJsonObject helpEntry(const QString& groupId, const QString& entryId) const;
    // The identifiers of the menu items the group defines.
    QStringList groupItems(const QString& groupId) const;
    // The ribbon's system menu, one text per entry: its identifier, or, for an entry without
    // one, "text -> macro".
    QStringList systemMenu() const;
    // The identifiers of the group's ribbon tabs.
    QStringList ribbonTabs(const QString& groupId) const;

    bool operator==(const UiModel& other) const { return m_model == other.m_model; }
    // How failures show a model: its JSON on one line.
    friend void PrintTo(const UiModel& model, std::ostream* out);

private:
    QJsonArray menuEntries(const QString& groupId, const QString& menuId) const;

    QJsonObject m_model;
};
