#include "workspace/WorkSpaceDefaultsPrivate.h"

#include <QDebug>
#include <QJsonDocument>
#include <QRegularExpression>

#include <algorithm>
#include <tuple>

namespace {

using Bundle = WorkSpaceDefaultsPrivate::DefaultsBundle;
using Error = WorkSpaceDefaultsPrivate::WorkSpaceBundleLoadError;

const QLatin1String namePattern(R"(zelmora(\d+)\.(\d+)\.json)");

void fail(Error &error, const QString &message)
{
    error = {Error::FormatError, message};
}

QString typeName(QJsonValue::Type type)
{
    switch (type) {
    case QJsonValue::Null:
        return QStringLiteral("Null");
    case QJsonValue::Bool:
        return QStringLiteral("Bool");
    case QJsonValue::Double:
        return QStringLiteral("Double");
    case QJsonValue::String:
        return QStringLiteral("String");
    case QJsonValue::Array:
        return QStringLiteral("Array");
    case QJsonValue::Object:
        return QStringLiteral("Object");
    case QJsonValue::Undefined:
        break;
    }
    return QStringLiteral("Unknown (%1)").arg(int(type));
}

/// True if the name is that of a bundle, whose version it gives.
bool readVersion(const QString &fileName, Bundle &bundle)
{
    static const QRegularExpression pattern(QRegularExpression::anchoredPattern(namePattern),
                                            QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = pattern.match(fileName);
    bool hasMajor = false;
    bool hasMinor = false;
    const int major = match.captured(1).toInt(&hasMajor);
    const int minor = match.captured(2).toInt(&hasMinor);
    if (hasMajor && hasMinor)
        bundle = {major, minor, {}};
    return hasMajor && hasMinor;
}

} // namespace

WorkSpaceDefaultsPrivate::WorkSpaceDefaultsPrivate(
    std::unique_ptr<WorkSpaceDefaultsFileIterator> files)
    : files_(std::move(files))
{
    initializeErrorHandler();
}

void WorkSpaceDefaultsPrivate::initializeErrorHandler()
{
    errorHandler_ = [](const QString &text) {
        qWarning() << text;
    };
}

void WorkSpaceDefaultsPrivate::setErrorHandler(std::function<void(QString)> handler)
{
    errorHandler_ = std::move(handler);
}

QMap<QString, DefaultWorkSpaceInfo> WorkSpaceDefaultsPrivate::getCurrentDefaults()
{
    loadAll();
    return currentDefaults_;
}

bool WorkSpaceDefaultsPrivate::isWorkSpaceDataEqualToOneOfPreviousDefaults(const QString &id,
                                                                           const QByteArray &data)
{
    loadAll();
    return std::any_of(allBundles_.cbegin(), allBundles_.cend(), [&](const Bundle &bundle) {
        const auto entry = bundle.entries.constFind(id);
        return entry != bundle.entries.constEnd() && entry->data == data;
    });
}

void WorkSpaceDefaultsPrivate::loadAll()
{
    if (isLoaded_)
        return;
    isLoaded_ = true;
    while (files_->hasNext())
        tryToLoadFileAndHandleErrors(files_->next());
    findLatestDefaultsBundle();
}

void WorkSpaceDefaultsPrivate::tryToLoadFileAndHandleErrors(
    const WorkSpaceDefaultsFileIterator::FileItem &item)
{
    Error error;
    const Bundle bundle = loadBundleFromFile(item, error);
    switch (error.code) {
    case Error::NoError:
        allBundles_.append(bundle);
        break;
    case Error::NameMismatch:
        report(QStringLiteral("The resource directory for workspaces defaults contains a file that "
                              "does not match the naming pattern: ") +
               item.fileName + QStringLiteral(" Naming pattern: ") + namePattern);
        break;
    case Error::FormatError:
        report(QStringLiteral("Failed to load file: ") + item.fileName +
               QStringLiteral(" Error: ") + error.message);
        break;
    default:
        qWarning() << "Logic error";
    }
}

void WorkSpaceDefaultsPrivate::report(const QString &text) const
{
    if (errorHandler_)
        errorHandler_(text);
}

void WorkSpaceDefaultsPrivate::findLatestDefaultsBundle()
{
    for (const DefaultsBundle &bundle : std::as_const(allBundles_)) {
        if (std::tie(bundle.major, bundle.minor) <= std::tie(latestMajor_, latestMinor_))
            continue;
        latestMajor_ = bundle.major;
        latestMinor_ = bundle.minor;
        currentDefaults_ = bundle.entries;
    }
}

WorkSpaceDefaultsPrivate::DefaultsBundle
WorkSpaceDefaultsPrivate::loadBundleFromFile(const WorkSpaceDefaultsFileIterator::FileItem &item,
                                             WorkSpaceBundleLoadError &error)
{
    error = {};
    DefaultsBundle bundle;
    if (!readVersion(item.fileName, bundle)) {
        error.code = Error::NameMismatch;
        return {};
    }
    const QByteArray contents = item.contents ? item.contents() : QByteArray();
    if (contents.isEmpty())
        fail(error, QStringLiteral("Error loading file contents"));
    else
        bundle.entries = parseFileContents(contents, error);
    return error.code == Error::NoError ? bundle : DefaultsBundle();
}

WorkSpaceDefaultsPrivate::Entries
WorkSpaceDefaultsPrivate::parseFileContents(const QByteArray &contents, Error &error)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(contents, &parseError);
    if (parseError.error == QJsonParseError::NoError)
        return parseJsonDocument(document, error);
    fail(error, QStringLiteral("File does not contain a valid json: ") + parseError.errorString());
    return {};
}

WorkSpaceDefaultsPrivate::Entries
WorkSpaceDefaultsPrivate::parseJsonDocument(const QJsonDocument &document, Error &error)
{
    if (!document.isObject()) {
        fail(error, QStringLiteral("File does not contain a json object at the root"));
        return {};
    }
    Entries entries;
    const QJsonObject root = document.object();
    for (auto entry = root.constBegin(); entry != root.constEnd(); ++entry) {
        const DefaultWorkSpaceInfo info = getWorkSpaceInfoFrom(entry, error);
        if (error.code != Error::NoError)
            return {};
        entries.insert(info.id, info);
    }
    return entries;
}

DefaultWorkSpaceInfo
WorkSpaceDefaultsPrivate::getWorkSpaceInfoFrom(QJsonObject::const_iterator entry, Error &error)
{
    const QJsonValue value = entry.value();
    if (!value.isObject()) {
        fail(error, QStringLiteral("One of the top level elements does not have a value of type "
                                   "object. Key ") +
                        entry.key() + QStringLiteral(" has value ") + typeName(value.type()));
        return {};
    }
    const QJsonObject object = value.toObject();
    DefaultWorkSpaceInfo info;
    info.id = entry.key();
    info.name = getNameFrom(object, error);
    if (error.code == Error::NoError)
        info.data = getDataFrom(object, error);
    return info;
}

QString WorkSpaceDefaultsPrivate::getNameFrom(const QJsonObject &entry, Error &error)
{
    const QJsonValue value = entry.value(QLatin1String("name"));
    if (value.isUndefined())
        fail(error, QStringLiteral("Missing name"));
    else if (!value.isString())
        fail(error, QStringLiteral("Invalid type for name: expected string but found type: ") +
                        typeName(value.type()));
    return value.toString();
}

QByteArray WorkSpaceDefaultsPrivate::getDataFrom(const QJsonObject &entry, Error &error)
{
    const QJsonValue value = entry.value(QLatin1String("data"));
    if (value.isUndefined())
        fail(error, QStringLiteral("Missing data field"));
    else if (!value.isString())
        fail(error, QStringLiteral("Invalid type for data: expected string but found type: ") +
                        typeName(value.type()));
    return QByteArray::fromBase64(value.toString().toLatin1());
}
