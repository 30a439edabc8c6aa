#pragma once

#include <QLineEdit>
#include <QStringList>

#include <functional>

class QCompleter;
class QStringListModel;

// The window's command line: Enter hands the line over and keeps it in the history; Up and
// Down walk the history (Down past the newest line gives back what was being typed); Tab
// completes the first word to the command names and statements known, as far as they agree,
// and a list of the names that fit opens as the first word is typed.
class CommandLineEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit CommandLineEdit(QWidget* parent = nullptr);

    // The names to complete, asked for as the first word is typed.
    void setCompletionSource(std::function<QStringList()> source);
    void setCompletions(const QStringList& names);
    const QStringList& history() const { return m_history; }

signals:
    void lineEntered(const QString& line);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void enter();
    void walkHistory(int step);
    void complete();

    QStringList m_history;
    int m_historyAt = 0; // m_history.size() while a new line is typed
    QString m_draft;
    QStringList m_names;
    std::function<QStringList()> m_source;
    QStringListModel* m_model;
    QCompleter* m_completer;
};
