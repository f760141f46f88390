#include "workspace/WorkSpaceFiles.h"

#include "ZelMessageBox.h"
#include "workspace/WorkSpaceExchange.h"
#include "workspace/WorkSpaceNames.h"

#include <ZelCore/ZelSettings>

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>
#include <QSaveFile>

namespace {

const QLatin1String folderKey("LastUsedWSFolder");

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(WorkSpaceMaintainDialog)
};

ZelSettings store()
{
    return ZelSettings(QStringLiteral("WorkSpaces"));
}

void prepare(QFileDialog *dialog)
{
    dialog->setNameFilter(QStringLiteral("*.zelsw"));
    dialog->setDefaultSuffix(QStringLiteral("zelsw"));
    const QString folder = store().value(folderKey).toString();
    if (!folder.isEmpty() && QFileInfo(folder).isDir())
        dialog->setDirectory(folder);
}

/// The chosen files; none if the dialog was left without a choice, or died with its parent.
QStringList choose(QFileDialog *fileDialog)
{
    const QPointer<QFileDialog> dialog(fileDialog);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (!dialog)
        return {};
    const QStringList paths = isAccepted ? dialog->selectedFiles() : QStringList();
    delete dialog.data();
    if (!paths.isEmpty())
        store().setValue(folderKey, QFileInfo(paths.first()).absolutePath());
    return paths;
}

bool write(const QString &path, const QByteArray &text)
{
    QSaveFile file(path);
    file.setDirectWriteFallback(true);
    return file.open(QIODevice::WriteOnly) && file.write(text) == text.size() && file.commit();
}

} // namespace

void WorkSpaceFiles::exportWorkSpaces(QWidget *parent,
                                      const QList<DefaultWorkSpaceInfo> &workSpaces)
{
    const QPointer<QWidget> guardedParent(parent);
    auto *dialog = new QFileDialog(parent, Texts::tr("Export Workspaces"));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    prepare(dialog);
    if (workSpaces.size() == 1)
        dialog->selectFile(WorkSpaceNames::filtered(workSpaces.first().name));
    const QStringList paths = choose(dialog);
    if (!paths.isEmpty())
        writeFile(guardedParent, paths.first(), workSpaces);
}

bool WorkSpaceFiles::writeFile(QWidget *parent, const QString &path,
                               const QList<DefaultWorkSpaceInfo> &workSpaces)
{
    QList<DefaultWorkSpaceInfo> marked = workSpaces;
    for (DefaultWorkSpaceInfo &workSpace : marked)
        workSpace.id = WorkSpaceNames::exportedId(workSpace.id);
    const bool isWritten = write(path, WorkSpaceExchange::write(marked));
    if (isWritten) {
        ZelMessageBox::information(parent, Texts::tr("Workspaces exported"),
                                   Texts::tr("The export succeeded without errors."));
    } else {
        ZelMessageBox::warning(parent, Texts::tr("Write file error"),
                               Texts::tr("Failed to write the file %1").arg(path));
    }
    return isWritten;
}

QList<DefaultWorkSpaceInfo> WorkSpaceFiles::importWorkSpaces(QWidget *parent)
{
    const QPointer<QWidget> guardedParent(parent);
    auto *dialog = new QFileDialog(parent, Texts::tr("Import workspaces"));
    dialog->setFileMode(QFileDialog::ExistingFiles);
    prepare(dialog);
    return readFiles(guardedParent, choose(dialog));
}

QList<DefaultWorkSpaceInfo> WorkSpaceFiles::readFiles(QWidget *parent, const QStringList &paths)
{
    const QPointer<QWidget> guardedParent(parent);
    QList<DefaultWorkSpaceInfo> all;
    for (const QString &path : paths) {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            ZelMessageBox::warning(guardedParent, Texts::tr("Error opening file"),
                                   Texts::tr("The file %1 could not be opened").arg(path));
        } else if (const auto found = WorkSpaceExchange::read(file.readAll())) {
            all.append(*found);
        } else {
            ZelMessageBox::critical(
                guardedParent, Texts::tr("Error"),
                Texts::tr("Could not import workspaces from file %1").arg(path));
        }
    }
    return all;
}
