#include "QuestionViewContent.h"

#include <QCoreApplication>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
QString text(const char* source)
{
    return QCoreApplication::translate("IQuestionView", source);
}
} // namespace

QWidget* QuestionViewContent::create()
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    auto* heading = new QLabel(text("Ask the Quillon community"));
    heading->setStyleSheet(QString::fromLatin1("font-weight: bold; color: #8CC642;"));
    auto* questions = new QListWidget;
    questions->setObjectName(QString::fromLatin1("Questions"));
    auto* question = new QLineEdit;
    question->setObjectName(QString::fromLatin1("Question"));
    question->setPlaceholderText(text("Type your question"));
    auto* ask = new QPushButton(text("Ask"));
    ask->setObjectName(QString::fromLatin1("Ask"));
    ask->setEnabled(false);
    layout->addWidget(heading);
    layout->addWidget(questions, 1);
    layout->addWidget(question);
    layout->addWidget(ask);

    QObject::connect(question, &QLineEdit::textChanged, ask,
                     [ask](const QString& typed) { ask->setEnabled(!typed.trimmed().isEmpty()); });
    const auto send = [questions, question] {
        const QString typed = question->text().trimmed();
        if (typed.isEmpty())
            return;
        questions->addItem(text("%1 (waiting to be sent)").arg(typed));
        question->clear();
    };
    QObject::connect(ask, &QPushButton::clicked, content, send);
    QObject::connect(question, &QLineEdit::returnPressed, content, send);
    return content;
}
