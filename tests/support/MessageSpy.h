#pragma once

#include <QRegularExpression>
#include <QString>
#include <QStringList>
#include <QtGlobal>

#include <vector>

/// Records every message that goes through Qt's message functions while it lives.
///
/// Warnings and criticals that a test did not announce with expect() are faults; so are announced
/// ones that did not come. Debug and info messages are recorded, never judged.
class MessageSpy
{
public:
    MessageSpy();
    ~MessageSpy();
    MessageSpy(const MessageSpy &) = delete;
    MessageSpy &operator=(const MessageSpy &) = delete;

    /// Announces one message of this type that holds the text.
    void expect(QtMsgType type, const QString &part);
    void expect(QtMsgType type, const QRegularExpression &pattern);
    /// All messages of the type so far, in order.
    QStringList messages(QtMsgType type) const;
    void clear();
    /// What is wrong so far: a line for each message that was not announced or did not come.
    QString faults() const;

private:
    struct Message
    {
        QtMsgType type;
        QString text;
    };
    struct Expectation
    {
        QtMsgType type;
        QRegularExpression pattern;
    };
    static void handle(QtMsgType type, const QMessageLogContext &context, const QString &text);

    std::vector<Message> messages_;
    std::vector<Expectation> expectations_;
    QtMessageHandler previous_ = nullptr;
};
