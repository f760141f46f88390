#pragma once

#include <QString>
#include <QStringList>
#include <QtGlobal>

/// Keeps the messages of the code under test for comparison, off the terminal.
inline QStringList &caughtMessages()
{
    static QStringList messages;
    return messages;
}

inline void catchMessages()
{
    static const auto previous =
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &text) {
            caughtMessages().append(text);
        });
    Q_UNUSED(previous)
    caughtMessages().clear();
}

inline QString textOf(const unsigned char *data, size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), qsizetype(size));
}

/// Ends the run with a finding.
inline void require(bool condition)
{
    if (!condition)
        __builtin_trap();
}
