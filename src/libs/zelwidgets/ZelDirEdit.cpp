#include "ZelDirEdit.h"

#include "DirValidator.h"

#include <QCompleter>
#include <QFileInfo>
#include <QFileSystemModel>

ZelDirEdit::ZelDirEdit(const QString &text)
{
    setup(text);
}

void ZelDirEdit::setup(const QString &text)
{
    setValidator(new DirValidator(this));
    auto *completer = new QCompleter(this);
    auto *folders = new QFileSystemModel(completer);
    folders->setFilter(QDir::Dirs | QDir::Drives | QDir::NoDotAndDotDot);
    folders->setRootPath(QString());
    completer->setModel(folders);
    setCompleter(completer);
    setText(text);
    connect(completer, qOverload<const QString &>(&QCompleter::activated), this,
            &ZelDirEdit::completerActivated);
    connect(this, &QLineEdit::textEdited, folders, [folders](const QString &path) {
        // A folder deep in the tree isn't read by itself before all above it are.
        const QModelIndex parent = folders->index(QFileInfo(path).path());
        if (folders->canFetchMore(parent))
            folders->fetchMore(parent);
    });
}

void ZelDirEdit::completerActivated(const QString &path)
{
    setText(path);
}
