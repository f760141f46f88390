#pragma once

#include <QSettings>
#include <QString>

/// The file of the settings store: one JSON object, an entry for each key. An entry with a comment
/// is an object that holds "comment" beside "value".
///
/// QSettings takes "/" for a group mark and tidies it up, so keys are encoded in its maps; the
/// file holds them as they are. A comment has a key of its own there, made from its value's.
namespace ZelSettingsFormat {

/// Larger files are neither read nor written.
constexpr qint64 maximumFileSize = 64 * 1024 * 1024;

QString encodedKey(const QString &key);
QString decodedKey(const QString &encodedKey);
QString commentKey(const QString &encodedKey);
bool isCommentKey(const QString &encodedKey);

/// What is wrong with the content; empty if nothing is. A blank file is an empty store.
QString parse(const QByteArray &content, QSettings::SettingsMap &map);
QByteArray compose(const QSettings::SettingsMap &map);

/// The read and write functions for QSettings. What they find wrong is kept for takeProblems(), as
/// they run under locks of QSettings that a message handler must not meet.
///
/// Before read() fails it copies the damaged file aside; if that can't be done, write() leaves
/// the file alone.
bool read(QIODevice &device, QSettings::SettingsMap &map);
bool write(QIODevice &device, const QSettings::SettingsMap &map);
QStringList takeProblems();

/// The registered format.
QSettings::Format format();

} // namespace ZelSettingsFormat
