#pragma once

#include <QByteArray>
#include <QDirIterator>
#include <QString>

#include <functional>

/// Walks over the files that may hold bundles of factory workspaces.
class WorkSpaceDefaultsFileIterator
{
public:
    struct FileItem
    {
        QString fileName;
        /// Reads the file; empty if that can't be done.
        std::function<QByteArray()> contents;
    };

    virtual ~WorkSpaceDefaultsFileIterator() = default;
    virtual bool hasNext() = 0;
    virtual FileItem next() = 0;
};

/// The files of the application's resource directory. None if it has no such directory.
class WorkSpaceDefaultsResourceIterator : public WorkSpaceDefaultsFileIterator
{
public:
    WorkSpaceDefaultsResourceIterator();

    bool hasNext() override;
    FileItem next() override;

private:
    QDirIterator files_;
};
