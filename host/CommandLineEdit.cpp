#include "CommandLineEdit.h"

#include <QAbstractItemView>
#include <QCompleter>
#include <QKeyEvent>
#include <QStringListModel>

CommandLineEdit::CommandLineEdit(QWidget* parent)
    : QLineEdit(parent), m_model(new QStringListModel(this)), m_completer(new QCompleter(this))
{
    setObjectName(QStringLiteral("CommandLine"));
    m_completer->setModel(m_model);
    m_completer->setCaseSensitivity(Qt::CaseInsensitive);
    m_completer->setCompletionMode(QCompleter::PopupCompletion);
    setCompleter(m_completer);
    connect(this, &QLineEdit::returnPressed, this, &CommandLineEdit::enter);
    connect(this, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (m_source && !text.contains(QLatin1Char(' ')))
            setCompletions(m_source());
    });
}

void CommandLineEdit::setCompletionSource(std::function<QStringList()> source)
{
    m_source = std::move(source);
}

void CommandLineEdit::setCompletions(const QStringList& names)
{
    if (names == m_names)
        return;
    m_names = names;
    QStringList sorted = names;
    sorted.removeDuplicates();
    std::sort(sorted.begin(), sorted.end(), [](const QString& a, const QString& b) {
        return a.compare(b, Qt::CaseInsensitive) < 0;
    });
    m_model->setStringList(sorted);
}

void CommandLineEdit::keyPressEvent(QKeyEvent* event)
{
    const bool popupOpen = m_completer->popup() && m_completer->popup()->isVisible();
    if (!popupOpen && event->key() == Qt::Key_Up) {
        walkHistory(-1);
    } else if (!popupOpen && event->key() == Qt::Key_Down) {
        walkHistory(1);
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

bool CommandLineEdit::focusNextPrevChild(bool next)
{
    // Tab completes; it does not leave the command line.
    if (next) {
        complete();
        return true;
    }
    return QLineEdit::focusNextPrevChild(next);
}

void CommandLineEdit::enter()
{
    const QString line = text().trimmed();
    clear();
    m_draft.clear();
    if (line.isEmpty())
        return;
    if (m_history.isEmpty() || m_history.last() != line)
        m_history.append(line);
    m_historyAt = m_history.size();
    emit lineEntered(line);
}

void CommandLineEdit::walkHistory(int step)
{
    const int to = qBound(0, m_historyAt + step, static_cast<int>(m_history.size()));
    if (to == m_historyAt)
        return;
    if (m_historyAt == m_history.size())
        m_draft = text();
    m_historyAt = to;
    setText(to == m_history.size() ? m_draft : m_history.at(to));
}

void CommandLineEdit::complete()
{
    const QString typed = text();
    if (typed.contains(QLatin1Char(' ')))
        return;
    if (m_source)
        setCompletions(m_source());
    QStringList fits;
    for (const QString& name : m_model->stringList()) {
        if (name.startsWith(typed, Qt::CaseInsensitive))
            fits << name;
    }
    if (fits.isEmpty())
        return;
    // As far as every name that fits agrees (letter case aside).
    QString common = fits.first();
    for (const QString& name : fits) {
        int length = 0;
        while (length < common.size() && length < name.size() &&
               common.at(length).toCaseFolded() == name.at(length).toCaseFolded())
            ++length;
        common.truncate(length);
    }
    if (m_completer->popup())
        m_completer->popup()->hide();
    setText(fits.size() == 1 ? fits.first() + QLatin1Char(' ') : common);
}
