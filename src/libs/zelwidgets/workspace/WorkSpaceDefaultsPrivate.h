#pragma once

#include "workspace/DefaultWorkSpaceInfo.h"
#include "workspace/WorkSpaceDefaultsFileIterator.h"

#include <QJsonObject>
#include <QList>
#include <QMap>

#include <functional>
#include <memory>

class QJsonDocument;

/// Reads bundles of factory workspaces and knows those of all versions.
class WorkSpaceDefaultsPrivate
{
public:
    struct DefaultsBundle
    {
        int major = -1;
        int minor = -1;
        QMap<QString, DefaultWorkSpaceInfo> entries;
    };

    struct WorkSpaceBundleLoadError
    {
        enum Code : int {
            NoError = 0,
            FormatError = 1,  ///< the content isn't that of a bundle
            NameMismatch = 2, ///< the name isn't that of a bundle
        };
        int code = NoError;
        QString message;
    };

    explicit WorkSpaceDefaultsPrivate(std::unique_ptr<WorkSpaceDefaultsFileIterator> files);

    /// Who is told of files that can't be used; at first they are logged as warnings.
    void setErrorHandler(std::function<void(QString)> handler);
    /// The workspaces of the newest bundle.
    QMap<QString, DefaultWorkSpaceInfo> getCurrentDefaults();
    bool isWorkSpaceDataEqualToOneOfPreviousDefaults(const QString &id, const QByteArray &data);

    /// A bundle without version and entries, and the reason in error, if the file isn't one.
    static DefaultsBundle loadBundleFromFile(const WorkSpaceDefaultsFileIterator::FileItem &item,
                                             WorkSpaceBundleLoadError &error);

private:
    using Entries = QMap<QString, DefaultWorkSpaceInfo>;
    using Error = WorkSpaceBundleLoadError;

    void initializeErrorHandler();
    void loadAll();
    void tryToLoadFileAndHandleErrors(const WorkSpaceDefaultsFileIterator::FileItem &item);
    void findLatestDefaultsBundle();
    void report(const QString &text) const;

    static Entries parseFileContents(const QByteArray &contents, Error &error);
    static Entries parseJsonDocument(const QJsonDocument &document, Error &error);
    static DefaultWorkSpaceInfo getWorkSpaceInfoFrom(QJsonObject::const_iterator entry,
                                                     Error &error);
    static QString getNameFrom(const QJsonObject &entry, Error &error);
    static QByteArray getDataFrom(const QJsonObject &entry, Error &error);

    std::unique_ptr<WorkSpaceDefaultsFileIterator> files_;
    int latestMajor_ = -1;
    int latestMinor_ = -1;
    Entries currentDefaults_;
    QList<DefaultsBundle> allBundles_;
    bool isLoaded_ = false;
    std::function<void(QString)> errorHandler_;
};
