#include "ZelSettingsFormat.h"

#include "ZelSettingsValue.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMutex>
#include <QSet>

namespace ZelSettingsFormat {
namespace {

constexpr int maximumCopies = 100;
const QLatin1String commentSuffix("%C");
const QLatin1String emptyKey("%E");
const QLatin1String commentMark("comment");
const QLatin1String valueMark("value");
const QLatin1String typeMark("type");

QBasicMutex mutex;

struct State
{
    QStringList problems;
    /// Damaged files that could not be copied.
    QSet<QString> untouchable;
};

State &state()
{
    // Never destroyed: the last write may come when other static objects are gone.
    static auto *instance = new State;
    return *instance;
}

struct Entry
{
    QJsonValue value;
    QString comment;
};

Entry splitEntry(const QJsonValue &json)
{
    QJsonObject object = json.toObject();
    const bool hasComment = object.value(commentMark).isString() && object.contains(valueMark) &&
                            object.size() == (object.contains(typeMark) ? 3 : 2);
    if (!hasComment)
        return {json, {}};
    const QString comment = object.take(commentMark).toString();
    return {object.contains(typeMark) ? QJsonValue(object) : object.value(valueMark), comment};
}

QJsonValue joinedEntry(const Entry &entry)
{
    if (entry.comment.isEmpty())
        return entry.value;
    QJsonObject object =
        entry.value.isObject() ? entry.value.toObject() : QJsonObject{{valueMark, entry.value}};
    object.insert(commentMark, entry.comment);
    return object;
}

bool haveEqualContent(const QString &path, const QString &otherPath)
{
    QFile file(path);
    QFile other(otherPath);
    if (file.size() != other.size() || !file.open(QIODevice::ReadOnly) ||
        !other.open(QIODevice::ReadOnly))
        return false;
    constexpr qint64 piece = 1024 * 1024;
    while (!file.atEnd()) {
        const QByteArray bytes = file.read(piece);
        if (bytes.isEmpty() || bytes != other.read(piece))
            return false;
    }
    return true;
}

// The path of a copy of the file; of an earlier one if it is the same. Empty if there is none.
QString copyAside(const QString &path)
{
    if (!QFileInfo(path).isFile())
        return {};
    for (int i = 1; i <= maximumCopies; ++i) {
        const QString suffix = i == 1 ? QString() : QStringLiteral("-%1").arg(i);
        const QString copy = path + QLatin1String(".damaged") + suffix;
        const bool isKept =
            QFileInfo::exists(copy) ? haveEqualContent(path, copy) : QFile::copy(path, copy);
        if (isKept)
            return copy;
    }
    return {};
}

QString fileNameOf(QIODevice &device)
{
    const auto *file = qobject_cast<const QFileDevice *>(&device);
    return file ? QFileInfo(file->fileName()).absoluteFilePath() : QString();
}

void keepDamagedFile(const QString &path, const QString &problem)
{
    const QString copy = copyAside(path);
    QString message = QStringLiteral("The settings file \"%1\" is damaged and is not used: %2. ")
                          .arg(path, problem);
    message += copy.isEmpty() ? QStringLiteral("It could not be copied and stays as it is.")
                              : QStringLiteral("A copy is kept as \"%1\".").arg(copy);
    const QMutexLocker lock(&mutex);
    if (copy.isEmpty())
        state().untouchable.insert(path);
    else
        state().untouchable.remove(path);
    state().problems.append(message);
}

void noteSound(const QString &path)
{
    const QMutexLocker lock(&mutex);
    state().untouchable.remove(path);
}

bool isUntouchable(const QString &path)
{
    const QMutexLocker lock(&mutex);
    return state().untouchable.contains(path) && QFileInfo::exists(path);
}

QString tooLarge()
{
    return QStringLiteral("it is larger than %1 bytes").arg(maximumFileSize);
}

} // namespace

QString encodedKey(const QString &key)
{
    if (key.isEmpty())
        return emptyKey;
    QString encoded;
    encoded.reserve(key.size());
    for (const QChar c : key) {
        if (c == QLatin1Char('/'))
            encoded += QLatin1String("%2F");
        else if (c == QLatin1Char('\\'))
            encoded += QLatin1String("%5C");
        else if (c == QLatin1Char('%'))
            encoded += QLatin1String("%25");
        else
            encoded += c;
    }
    return encoded;
}

QString decodedKey(const QString &encodedKey)
{
    if (encodedKey == emptyKey)
        return QString();
    return QString(encodedKey)
        .replace(QLatin1String("%2F"), QLatin1String("/"))
        .replace(QLatin1String("%5C"), QLatin1String("\\"))
        .replace(QLatin1String("%25"), QLatin1String("%"));
}

QString commentKey(const QString &encodedKey)
{
    return encodedKey + commentSuffix;
}

bool isCommentKey(const QString &encodedKey)
{
    return encodedKey.endsWith(commentSuffix);
}

QString parse(const QByteArray &content, QSettings::SettingsMap &map)
{
    if (content.trimmed().isEmpty())
        return {};
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(content, &error);
    if (error.error != QJsonParseError::NoError)
        return QStringLiteral("%1 at byte %2").arg(error.errorString()).arg(error.offset);
    if (!document.isObject())
        return QStringLiteral("it is not one JSON object");

    QSettings::SettingsMap found;
    const QJsonObject object = document.object();
    for (auto i = object.begin(); i != object.end(); ++i) {
        const Entry entry = splitEntry(i.value());
        const std::optional<QVariant> value = ZelSettingsValue::fromJson(entry.value);
        if (!value)
            return QStringLiteral("the value of \"%1\" is nested too deep").arg(i.key());
        const QString key = encodedKey(i.key());
        found.insert(key, *value);
        if (!entry.comment.isEmpty())
            found.insert(commentKey(key), entry.comment);
    }
    map = found;
    return {};
}

QByteArray compose(const QSettings::SettingsMap &map)
{
    QJsonObject object;
    for (auto i = map.begin(); i != map.end(); ++i) {
        if (isCommentKey(i.key()))
            continue;
        const QString comment = map.value(commentKey(i.key())).toString();
        object.insert(decodedKey(i.key()),
                      joinedEntry({ZelSettingsValue::toJson(i.value()), comment}));
    }
    return QJsonDocument(object).toJson(QJsonDocument::Indented);
}

bool read(QIODevice &device, QSettings::SettingsMap &map)
{
    const QString problem =
        device.size() > maximumFileSize ? tooLarge() : parse(device.readAll(), map);
    const QString path = fileNameOf(device);
    if (problem.isEmpty())
        noteSound(path);
    else
        keepDamagedFile(path, problem);
    return problem.isEmpty();
}

bool write(QIODevice &device, const QSettings::SettingsMap &map)
{
    if (isUntouchable(fileNameOf(device)))
        return false;
    const QByteArray content = compose(map);
    if (content.size() > maximumFileSize) {
        const QMutexLocker lock(&mutex);
        state().problems.append(QStringLiteral("The settings are not written: ") + tooLarge());
        return false;
    }
    return device.write(content) == content.size();
}

QStringList takeProblems()
{
    const QMutexLocker lock(&mutex);
    return std::exchange(state().problems, {});
}

QSettings::Format format()
{
    static const QSettings::Format registered =
        QSettings::registerFormat(QStringLiteral("zelsettings"), &read, &write, Qt::CaseSensitive);
    return registered;
}

} // namespace ZelSettingsFormat
