#include "workspace/WorkSpaceWidgetRibbon.h"

#include "ZelDialogTextCopier.h"
#include "ZelMessageBox.h"
#include "theme/ZelStyleSheets.h"
#include "workspace/WorkSpaceComparison.h"
#include "workspace/WorkSpaceFiles.h"
#include "workspace/WorkSpaceHandler.h"
#include "workspace/WorkSpaceMaintainDialog.h"
#include "workspace/WorkSpaceNames.h"
#include "workspace/WorkSpaceRibbonData.h"
#include "workspace/WorkSpaceTextDialog.h"

#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionButton>

#include <algorithm>

namespace {

constexpr int dotSize = 6;
/// Wide enough for the space that a style sheet puts in front of a name.
constexpr int dotMargin = 14;
constexpr int dotIconSize = 10;

/// A name as text of a button or an entry, where "&" would mark a key.
QString shown(const QString &name)
{
    QString text = name;
    return text.replace(u'&', QStringLiteral("&&"));
}

void paintDot(QPainter *painter, const QRectF &place, const QPalette &palette)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(Qt::NoPen);
    painter->setBrush(palette.color(QPalette::Link));
    painter->drawEllipse(place);
}

QIcon dotIcon(const QWidget *widget)
{
    const qreal ratio = widget->devicePixelRatioF();
    QPixmap picture((QSizeF(dotIconSize, dotIconSize) * ratio).toSize());
    picture.setDevicePixelRatio(ratio);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    const qreal margin = (dotIconSize - dotSize) / 2.0;
    paintDot(&painter, QRectF(margin, margin, dotSize, dotSize), widget->palette());
    return picture;
}

/// Counts a call in which the button may die.
class RunningCall
{
public:
    explicit RunningCall(std::shared_ptr<WorkSpaceRibbonData> data)
        : data_(std::move(data))
    {
        ++data_->runningCalls;
    }
    ~RunningCall() { --data_->runningCalls; }
    RunningCall(const RunningCall &) = delete;
    RunningCall &operator=(const RunningCall &) = delete;

private:
    std::shared_ptr<WorkSpaceRibbonData> data_;
};

} // namespace

WorkSpaceWidgetRibbon::WorkSpaceWidgetRibbon(QWidget *parent)
    : ZelMenuButton(parent)
    , data_(std::make_shared<WorkSpaceRibbonData>())
{
    setObjectName(QStringLiteral("Ribbon"));
    setStyleSheet(styleSheet() + QStringLiteral("text-align: left;"));
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setText(QString());
    setAccessibleName(tr("Workspaces"));
    createMenuButton();

    data_->button = this;
    data_->factory = WorkSpaceHandler::getDefaultWorkSpaces();
    data_->list.addNewFactoryWorkSpaces(data_->factory);
    slotSetInitialWorkSpaces();
    const QString startId = data_->list.startId(data_->factory);
    if (!startId.isEmpty())
        data_->currentId = startId;
    showCurrentName();
}

WorkSpaceWidgetRibbon::~WorkSpaceWidgetRibbon()
{
    // The menu comes back to its own code when the call of its entry is over.
    QMenu *const menu = this->menu();
    if (menu && data_->runningCalls > 0) {
        menu->hide();
        menu->setParent(nullptr);
        menu->deleteLater();
    }
}

void WorkSpaceWidgetRibbon::createMenuButton()
{
    auto *menu = new QMenu(tr("Workspaces"), this);
    menu->setWindowFlags(Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    menu->setAttribute(Qt::WA_TranslucentBackground);
    menu->setToolTipsVisible(true);
    connect(menu, &QMenu::aboutToShow, this, &WorkSpaceWidgetRibbon::slotCreateMenu);
    connect(menu, &QMenu::triggered, this, &WorkSpaceWidgetRibbon::slotWorkSpaceMenuItemSelected);
    setMenu(menu);
}

QMenu *WorkSpaceWidgetRibbon::menu() const
{
    return ZelMenuButton::menu();
}

QString WorkSpaceWidgetRibbon::currentWorkSpace() const
{
    return data_->currentId;
}

bool WorkSpaceWidgetRibbon::isWorkSpaceChanged() const
{
    return isChanged_;
}

void WorkSpaceWidgetRibbon::setLibraryWindow(QWidget *window)
{
    data_->libraryWindow = window;
}

void WorkSpaceWidgetRibbon::setProjectWindow(QWidget *window)
{
    data_->projectWindow = window;
}

void WorkSpaceWidgetRibbon::slotSetInitialWorkSpaces()
{
    const QString id = data_->list.setUpOnce(data_->factory);
    if (!data_->list.contains(id))
        return;
    data_->currentId = id;
    showCurrentName();
}

void WorkSpaceWidgetRibbon::slotCreateMenu()
{
    updateChangeMark();
    QMenu *const menu = this->menu();
    menu->clear();
    const bool hasCurrent = data_->list.contains(data_->currentId);
    addWorkSpaceEntries();
    menu->addSeparator();
    menu->addAction(tr("Add..."), this, &WorkSpaceWidgetRibbon::slotAddWorkSpace)
        ->setToolTip(tr("Add the current workspace to the combo"));
    QAction *overwrite = menu->addAction(tr("Apply Changes..."), this,
                                         &WorkSpaceWidgetRibbon::slotOverwriteWorkSpace);
    overwrite->setToolTip(tr("Overwrite the selected workspace with the current workspace"));
    overwrite->setEnabled(hasCurrent);
    menu->addAction(tr("Manage..."), this, &WorkSpaceWidgetRibbon::slotRunMaintainDlg)
        ->setToolTip(tr("Reorder, rename and delete workspaces"));
    menu->addSeparator();
    addThemeEntries();
    menu->addSeparator();
    QAction *duplicate =
        menu->addAction(tr("Duplicate..."), this, &WorkSpaceWidgetRibbon::slotDuplicateWorkSpace);
    duplicate->setToolTip(tr("Copy the selected workspace as it is saved"));
    duplicate->setEnabled(hasCurrent);
    QAction *save =
        menu->addAction(tr("Export..."), this, &WorkSpaceWidgetRibbon::slotExportWorkSpace);
    save->setToolTip(tr("Write the selected workspace as it is saved to a file"));
    save->setEnabled(hasCurrent);
}

void WorkSpaceWidgetRibbon::addWorkSpaceEntries()
{
    for (const QString &id : data_->list.ids()) {
        QAction *entry = menu()->addAction(shown(data_->list.nameOf(id)));
        entry->setData(id);
        if (id != data_->currentId)
            continue;
        entry->setText(entry->text() + QStringLiteral("..."));
        if (!isChanged_)
            continue;
        entry->setIcon(dotIcon(this));
        entry->setToolTip(tr("The interface differs from this workspace"));
    }
}

void WorkSpaceWidgetRibbon::addThemeEntries()
{
    data_->themeActions.clear();
    const QString current = ZelStyleSheets::colorThemeFromSettings();
    for (const auto &[label, key] : ZelStyleSheets::colorThemeList()) {
        QAction *entry = menu()->addAction(tr("%1 Theme").arg(label));
        entry->setData(key);
        entry->setCheckable(true);
        entry->setChecked(key == current);
        data_->themeActions.append(entry);
    }
}

void WorkSpaceWidgetRibbon::slotWorkSpaceMenuItemSelected(QAction *action)
{
    if (!action)
        return;
    const QString key = action->data().toString();
    if (data_->themeActions.contains(action))
        chooseTheme(key);
    else if (data_->list.contains(key))
        chooseWorkSpace(key);
}

void WorkSpaceWidgetRibbon::chooseTheme(const QString &key)
{
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const RunningCall call(data_);
    ZelStyleSheets::updateColorThemeSettings(key);
    // Runs posted events.
    ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(key, QString(), false);
    if (self)
        Q_EMIT changedTheme(key);
}

void WorkSpaceWidgetRibbon::chooseWorkSpace(const QString &id)
{
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const RunningCall call(data_);
    if (id == data_->currentId && !ZelMessageBox::noGui() && !confirmRevert(data_->list.nameOf(id)))
        return;
    if (!self)
        return;
    makeCurrent(id);
    // Both the windows and the button may be gone when events have run.
    const std::shared_ptr<WorkSpaceRibbonData> data = data_;
    WorkSpaceHandler::restoreWorkSpace(data->list.data(id), data->libraryWindow,
                                       data->projectWindow, false);
    if (self && self->data_->currentId == id)
        settle(capture());
}

bool WorkSpaceWidgetRibbon::confirmRevert(const QString &name)
{
    const QPointer<QMessageBox> box =
        new QMessageBox(QMessageBox::Question, tr("Revert Workspace Changes"),
                        tr("Do you want to revert to the saved Workspace '%1'?").arg(name),
                        QMessageBox::Yes | QMessageBox::No, window());
    box->button(QMessageBox::Yes)->setText(tr("Revert"));
    new ZelDialogTextCopier(box);
    const int answer = box->exec();
    delete box.data();
    return answer == QMessageBox::Yes;
}

void WorkSpaceWidgetRibbon::slotOverwriteWorkSpace()
{
    const QString id = data_->currentId;
    if (!data_->list.contains(id))
        return;
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const RunningCall call(data_);
    const auto answer =
        ZelMessageBox::question(window(), tr("Apply Workspace Changes"),
                                tr("Do you want to update '%1' to use the current interface "
                                   "configuration?")
                                    .arg(data_->list.nameOf(id)));
    if (!self || answer != QMessageBox::Yes)
        return;
    const QByteArray data = capture();
    data_->list.setData(id, data);
    settle(data);
}

void WorkSpaceWidgetRibbon::slotAddWorkSpace()
{
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const RunningCall call(data_);
    const QString name =
        askForName(tr("Add Workspace"), WorkSpaceNames::proposedName(data_->list.names()));
    if (!self || name.isNull())
        return;
    const QString id = WorkSpaceNames::freeId(data_->list.ids());
    const QByteArray data = capture();
    data_->list.add({id, name, data});
    makeCurrent(id);
    settle(data);
}

void WorkSpaceWidgetRibbon::slotDuplicateWorkSpace()
{
    const QString original = data_->currentId;
    if (!data_->list.contains(original))
        return;
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const RunningCall call(data_);
    const QString proposal =
        WorkSpaceNames::importedName(data_->list.nameOf(original), data_->list.names());
    const QString name = askForName(tr("Duplicate Workspace"), proposal);
    if (!self || name.isNull())
        return;
    const QString id = WorkSpaceNames::freeId(data_->list.ids());
    data_->list.add({id, name, data_->list.data(original)});
    // What the interface was like when the original came into force holds for its copy as well.
    makeCurrent(id);
}

QString WorkSpaceWidgetRibbon::askForName(const QString &title, const QString &proposal)
{
    const QPointer<WorkSpaceTextDialog> dialog =
        new WorkSpaceTextDialog(title, tr("Workspace Name:"), proposal, this);
    const bool isAccepted = dialog->exec() == QDialog::Accepted && dialog;
    const QString name = isAccepted ? dialog->text().trimmed() : QString();
    delete dialog.data();
    return name;
}

void WorkSpaceWidgetRibbon::slotExportWorkSpace()
{
    const QString id = data_->currentId;
    const RunningCall call(data_);
    if (data_->list.contains(id))
        WorkSpaceFiles::exportWorkSpaces(window(),
                                         {{id, data_->list.nameOf(id), data_->list.data(id)}});
}

void WorkSpaceWidgetRibbon::slotRunMaintainDlg()
{
    const QPointer<WorkSpaceWidgetRibbon> self(this);
    const RunningCall call(data_);
    const QByteArray before = data_->list.data(data_->currentId);
    const QPointer<WorkSpaceMaintainDialog> dialog = new WorkSpaceMaintainDialog(data_, window());
    dialog->exec();
    delete dialog.data();
    if (!self)
        return;
    if (data_->list.data(data_->currentId) != before)
        settle(QByteArray());
    if (data_->currentId.isEmpty())
        makeCurrent(QString());
    showCurrentName();
}

void WorkSpaceWidgetRibbon::makeCurrent(const QString &id)
{
    data_->currentId = id;
    data_->list.setLastUsed(id);
    showCurrentName();
}

void WorkSpaceWidgetRibbon::showCurrentName()
{
    const QString name = data_->list.nameOf(data_->currentId);
    setText(shown(name));
    setAccessibleDescription(
        isChanged_ ? tr("%1, the interface differs from this workspace").arg(name) : name);
}

QByteArray WorkSpaceWidgetRibbon::capture() const
{
    return WorkSpaceHandler::getWorkSpaceData(data_->libraryWindow, data_->projectWindow);
}

void WorkSpaceWidgetRibbon::settle(const QByteArray &data)
{
    settled_ = data;
    setChanged(false);
}

void WorkSpaceWidgetRibbon::updateChangeMark()
{
    if (WorkSpaceHandler::isInWorkspaceRestore())
        return;
    const QByteArray stored = data_->list.data(data_->currentId);
    if (stored.isEmpty() || !data_->libraryWindow || !data_->projectWindow) {
        setChanged(false);
        return;
    }
    const QByteArray present = capture();
    const bool isSame =
        WorkSpaceComparison::isSameArrangement(stored, present) ||
        (!settled_.isEmpty() && WorkSpaceComparison::isSameArrangement(settled_, present));
    setChanged(!isSame);
}

void WorkSpaceWidgetRibbon::setChanged(bool changed)
{
    if (changed == isChanged_)
        return;
    isChanged_ = changed;
    showCurrentName();
    update();
}

void WorkSpaceWidgetRibbon::paintEvent(QPaintEvent *event)
{
    ZelMenuButton::paintEvent(event);
    if (!isChanged_)
        return;
    // Behind the name, as long as there is room in front of the arrow.
    QStyleOptionButton option;
    initStyleOption(&option);
    const QRect contents = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
    const int nameEnd = contents.left() + fontMetrics().size(Qt::TextShowMnemonic, text()).width();
    const int left = std::min(nameEnd + dotMargin, contents.right() - dotSize);
    const QRect dot(left, (height() - dotSize) / 2, dotSize, dotSize);
    QPainter painter(this);
    paintDot(&painter, QStyle::visualRect(layoutDirection(), rect(), dot), palette());
}
