#include "ZelFileNameDisplay.h"

#include "ZelToolButton.h"
#include "theme/ZelStyleIcon.h"

#include <ZelCore/ZelMimeTypes>
#include <ZelCore/showInFolder>

#include <QAction>
#include <QClipboard>
#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenu>
#include <QMimeData>
#include <QUrl>

class ZelFileNameDisplayPrivate
{
public:
    QLineEdit *nameField = nullptr;
    QHBoxLayout *layout = nullptr;
    QAction *open = nullptr;
    QAction *refresh = nullptr;
    QAction *remove = nullptr;
    QAction *replace = nullptr;
    QString dropPattern;
    QString filename;
};

ZelFileNameDisplay::ZelFileNameDisplay(Buttons buttons)
    : d_(std::make_unique<ZelFileNameDisplayPrivate>())
{
    makeActions();
    makeLayout(buttons);
    setAcceptDrops(true);
}

ZelFileNameDisplay::ZelFileNameDisplay(const QString &filename, Buttons buttons)
    : ZelFileNameDisplay(buttons)
{
    setFilename(filename);
}

ZelFileNameDisplay::~ZelFileNameDisplay() = default;

void ZelFileNameDisplay::makeActions()
{
    d_->open = new QAction(ZelStyleIcon(QStringLiteral(":ui/icons/folder")), tr("Open"), this);
    d_->refresh =
        new QAction(ZelStyleIcon(QStringLiteral(":ui/icons/refresh")), tr("Reload"), this);
    d_->remove = new QAction(ZelStyleIcon(QStringLiteral(":ui/icons/delete")), tr("Remove"), this);
    d_->replace = new QAction(tr("Replace and retain size"), this);
    connect(d_->open, &QAction::triggered, this, &ZelFileNameDisplay::openClicked);
    connect(d_->refresh, &QAction::triggered, this, &ZelFileNameDisplay::refreshClicked);
    connect(d_->remove, &QAction::triggered, this, &ZelFileNameDisplay::removeClicked);
    connect(d_->replace, &QAction::triggered, this, &ZelFileNameDisplay::replaceClicked);
}

void ZelFileNameDisplay::makeLayout(Buttons buttons)
{
    d_->layout = new QHBoxLayout(this);
    d_->layout->setContentsMargins(0, 0, 0, 0);
    d_->nameField = new QLineEdit(this);
    d_->nameField->setReadOnly(true);
    d_->nameField->setAccessibleName(tr("File name"));
    // Drops are for the whole display.
    d_->nameField->setAcceptDrops(false);
    d_->nameField->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(d_->nameField, &QWidget::customContextMenuRequested, this,
            &ZelFileNameDisplay::showContextMenu);
    d_->layout->addWidget(d_->nameField, 1);

    const std::pair<Button, QAction *> actions[] = {
        {Open, d_->open}, {Refresh, d_->refresh}, {Remove, d_->remove}, {Replace, d_->replace}};
    for (const auto &[button, action] : actions) {
        if (!buttons.testFlag(button))
            continue;
        auto *toolButton = new ZelToolButton(action, this);
        toolButton->setFocusPolicy(Qt::TabFocus);
        d_->layout->addWidget(toolButton);
    }
}

QString ZelFileNameDisplay::filename() const
{
    return d_->filename;
}

QString ZelFileNameDisplay::path() const
{
    return d_->filename.isEmpty() ? QString() : QFileInfo(d_->filename).absoluteFilePath();
}

void ZelFileNameDisplay::setFilename(const QString &filename)
{
    d_->filename = filename;
    const QFileInfo file(filename);
    d_->nameField->setText(file.fileName());
    d_->nameField->setCursorPosition(0);
    // A path with a zero can't be that of a file; Qt warns of the question.
    const bool isPath = !filename.isEmpty() && !filename.contains(QChar::Null);
    QString toolTip = isPath && file.exists() ? path() : QString();
    if (Qt::mightBeRichText(toolTip))
        toolTip = toolTip.toHtmlEscaped();
    d_->nameField->setToolTip(toolTip);
}

void ZelFileNameDisplay::clearFilename()
{
    setFilename(QString());
}

void ZelFileNameDisplay::addWidget(QWidget *widget)
{
    if (widget)
        d_->layout->addWidget(widget);
}

void ZelFileNameDisplay::setDropPattern(const QString &pattern)
{
    d_->dropPattern = pattern;
}

void ZelFileNameDisplay::setEnabled(bool choosing, bool fileButtons)
{
    d_->nameField->setEnabled(choosing);
    d_->open->setEnabled(choosing);
    setAcceptDrops(choosing);
    for (QAction *action : {d_->refresh, d_->remove, d_->replace})
        action->setEnabled(fileButtons);
}

void ZelFileNameDisplay::setOpenToolTip(const QString &toolTip)
{
    d_->open->setToolTip(toolTip);
}

void ZelFileNameDisplay::setRefreshToolTip(const QString &toolTip)
{
    d_->refresh->setToolTip(toolTip);
}

void ZelFileNameDisplay::setRemoveToolTip(const QString &toolTip)
{
    d_->remove->setToolTip(toolTip);
}

QString ZelFileNameDisplay::filenameFromMime(const QMimeData *data)
{
    if (!data)
        return {};
    for (const auto decode : {&ZelMimeTypes::decodeTexture, &ZelMimeTypes::decodeEnvironment,
                              &ZelMimeTypes::decodeBackplate}) {
        const QString name = decode(data);
        if (!name.isEmpty())
            return name;
    }
    if (!data->hasUrls())
        return {};
    const QList<QUrl> urls = data->urls();
    return urls.size() == 1 ? urls.first().toLocalFile() : QString();
}

void ZelFileNameDisplay::dragEnterEvent(QDragEnterEvent *event)
{
    const QString name = filenameFromMime(event->mimeData());
    const bool isFitting =
        d_->dropPattern.isEmpty() || QDir::match(d_->dropPattern, QFileInfo(name).fileName());
    if (!name.isEmpty() && isFitting)
        event->acceptProposedAction();
    else
        event->ignore();
}

void ZelFileNameDisplay::dropEvent(QDropEvent *event)
{
    const QString name = filenameFromMime(event->mimeData());
    if (name.isEmpty()) {
        event->ignore();
        return;
    }
    event->acceptProposedAction();
    Q_EMIT filenameDropped(name);
}

void ZelFileNameDisplay::showContextMenu(const QPoint &position)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const QString shown = path();
    QAction *copy = menu->addAction(tr("Copy Path"), this,
                                    [shown] { QGuiApplication::clipboard()->setText(shown); });
    QAction *show =
        menu->addAction(tr("Show In Explorer"), this, [shown] { orv::showInFolder(shown); });
    copy->setEnabled(!shown.isEmpty());
    show->setEnabled(!shown.isEmpty());
    menu->popup(d_->nameField->mapToGlobal(position));
}
