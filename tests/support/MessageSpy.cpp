#include "MessageSpy.h"

#include <QMutex>

namespace {
MessageSpy *activeSpy = nullptr;
QBasicMutex spyMutex;

bool isJudged(QtMsgType type)
{
    return type == QtWarningMsg || type == QtCriticalMsg;
}

// The platform plugin without a display says these of calls that a real one carries out.
bool isPlatformNoise(const QString &text)
{
    return text.startsWith(QLatin1String("This plugin does not support"));
}
} // namespace

MessageSpy::MessageSpy()
{
    Q_ASSERT(!activeSpy);
    activeSpy = this;
    previous_ = qInstallMessageHandler(&MessageSpy::handle);
}

MessageSpy::~MessageSpy()
{
    qInstallMessageHandler(previous_);
    activeSpy = nullptr;
}

void MessageSpy::handle(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    const QMutexLocker lock(&spyMutex);
    MessageSpy *spy = activeSpy;
    if (spy && !isPlatformNoise(text))
        spy->messages_.push_back({type, text});
    if (spy && spy->previous_ && type == QtFatalMsg)
        spy->previous_(type, context, text);
}

void MessageSpy::expect(QtMsgType type, const QString &part)
{
    expect(type, QRegularExpression(QRegularExpression::escape(part)));
}

void MessageSpy::expect(QtMsgType type, const QRegularExpression &pattern)
{
    expectations_.push_back({type, pattern});
}

QStringList MessageSpy::messages(QtMsgType type) const
{
    QStringList found;
    for (const Message &message : messages_) {
        if (message.type == type)
            found.append(message.text);
    }
    return found;
}

void MessageSpy::clear()
{
    messages_.clear();
    expectations_.clear();
}

QString MessageSpy::faults() const
{
    std::vector<Message> open;
    for (const Message &message : messages_) {
        if (isJudged(message.type))
            open.push_back(message);
    }
    QStringList lines;
    for (const Expectation &expectation : expectations_) {
        const auto match = std::find_if(open.begin(), open.end(), [&](const Message &message) {
            return message.type == expectation.type &&
                   expectation.pattern.match(message.text).hasMatch();
        });
        if (match == open.end() && isJudged(expectation.type))
            lines.append(QStringLiteral("missing message: ") + expectation.pattern.pattern());
        else if (match != open.end())
            open.erase(match);
    }
    for (const Message &message : open)
        lines.append(QStringLiteral("unexpected message: ") + message.text);
    return lines.join(QLatin1Char('\n'));
}
