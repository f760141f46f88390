#include "WindowsPage.h"

#include <ZelWidgets/KeyStateInformation>
#include <ZelWidgets/KeyToSignalFilter>
#include <ZelWidgets/PreventSleep>
#include <ZelWidgets/SameSizeController>
#include <ZelWidgets/ZelAdaptiveTimer>
#include <ZelWidgets/ZelCopyPasteEventFilter>
#include <ZelWidgets/ZelCursorState>
#include <ZelWidgets/ZelDeleteEventFilter>
#include <ZelWidgets/ZelDirectedResizeWidget>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelToolButton>
#include <ZelWidgets/ZelWindowPlacement>

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QScreen>
#include <QVBoxLayout>

namespace {

/// A button that asks its controller for the size that it has in common with others.
class SameSizeButton : public ZelPushButton
{
public:
    SameSizeButton(const QString &text, SameSizeController *controller, QWidget *parent)
        : ZelPushButton(text, parent)
        , controller_(controller)
    {
        controller->addChildInf(
            [this](SameSizeController::SzHintMode mode) {
                return mode == SameSizeController::SzHintMode(0) ? ZelPushButton::sizeHint()
                                                                 : ZelPushButton::minimumSizeHint();
            },
            this);
    }

    QSize sizeHint() const override { return controller_->szHint(ZelPushButton::sizeHint()); }
    QSize minimumSizeHint() const override
    {
        return controller_->minSzHint(ZelPushButton::minimumSizeHint());
    }

private:
    SameSizeController *controller_;
};

} // namespace

WindowsPage::WindowsPage(QWidget *parent)
    : GalleryPage(parent)
    , sleep_(new PreventSleep(this))
{
    addPlacement();
    addModality();
    addCorrections();
    addSizes();
    addKeys();
    addServices();
    addStretch();
}

QGridLayout *WindowsPage::addTrials(const QString &title)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    grid->setVerticalSpacing(6);
    grid->setColumnMinimumWidth(0, fontMetrics().averageCharWidth() * 34);
    grid->setColumnStretch(1, 1);
    addSection(title)->addLayout(grid);
    return grid;
}

void WindowsPage::addTrial(QGridLayout *grid, const QList<QWidget *> &controls, const QString &text)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    for (QWidget *control : controls)
        row->addWidget(control);
    row->addStretch(1);
    auto *label = new QLabel(text, this);
    label->setProperty("dim", true);
    label->setWordWrap(true);
    const int line = grid->rowCount();
    grid->addLayout(row, line, 0);
    grid->addWidget(label, line, 1, Qt::AlignVCenter);
}

QPushButton *WindowsPage::createButton(const QString &text, void (WindowsPage::*action)())
{
    auto *button = new ZelPushButton(text, this);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

QDialog *WindowsPage::createWindow(const QString &title, const QString &explanation)
{
    auto *window = new QDialog(this, Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(title);
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(16, 16, 16, 16);
    layout->setSpacing(12);
    auto *text = new QLabel(explanation, window);
    text->setWordWrap(true);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 48);
    layout->addWidget(text);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, window);
    connect(buttons, &QDialogButtonBox::rejected, window, &QWidget::close);
    layout->addWidget(buttons);
    return window;
}

void WindowsPage::addPlacement()
{
    QGridLayout *grid = addTrials(tr("Placement"));
    addTrial(grid, {createButton(tr("Centred window"), &WindowsPage::openCentred)},
             tr("Opens in the middle of the screen."));
    addTrial(grid, {createButton(tr("Lost window"), &WindowsPage::openLost)},
             tr("Opens with most of it outside the screen; its button brings it back over this "
                "page."));
}

void WindowsPage::openCentred()
{
    QWidget *window =
        createWindow(tr("Centred"), tr("This window is in the middle of the screen."));
    centerWidgetOnScreen(window, screen());
    window->show();
}

void WindowsPage::openLost()
{
    QDialog *window =
        createWindow(tr("Lost"), tr("Most of this window was opened outside the screen."));
    auto *back = new ZelPushButton(tr("&Bring it back"), window);
    window->findChild<QDialogButtonBox *>()->addButton(back, QDialogButtonBox::ActionRole);
    connect(back, &QPushButton::clicked, window, [window] { ensureNiceWidgetPosition(window); });
    window->adjustSize();
    const QRect area = screen()->availableGeometry();
    window->move(area.right() - window->width() / 2, area.bottom() - window->height());
    window->show();
}

void WindowsPage::addModality()
{
    QGridLayout *grid = addTrials(tr("Modal dialogs and always-on-top windows"));
    addTrial(grid, {createButton(tr("Always-on-top window"), &WindowsPage::openAlwaysOnTop)},
             tr("Opens a tool window in the middle of the screen that stays over the others."));
    addTrial(grid, {createButton(tr("Modal dialog"), &WindowsPage::openModal)},
             tr("Opens at the same place. The tool window would cover it: it is hidden, the log "
                "tells so, and the button above shows it again."));
}

void WindowsPage::openAlwaysOnTop()
{
    if (!onTop_) {
        onTop_ = createWindow(tr("Always on top"),
                              tr("This window stays on top. Open the modal dialog now."));
        onTop_->setWindowFlags(Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                               Qt::WindowStaysOnTopHint);
        onTop_->resize(460, 260);
    }
    centerWidgetOnScreen(onTop_, screen());
    onTop_->show();
}

void WindowsPage::openModal()
{
    QWidget *window = createWindow(
        tr("Modal"), tr("The other windows don't answer until this dialog is closed."));
    window->setWindowModality(Qt::ApplicationModal);
    centerWidgetOnScreen(window, screen());
    window->show();
}

void WindowsPage::addCorrections()
{
    QGridLayout *grid = addTrials(tr("Corrections to Qt's widgets"));
    auto *tip = new ZelPushButton(tr("Tool tip"), this);
    tip->setToolTip(tr("A tool tip in one line"));
    addTrial(grid, {tip}, tr("Rest the mouse here: the tip is as large as its text needs."));

    auto *menuButton = new ZelToolButton(ZelToolButton::Border, this);
    menuButton->addToObjectName(QStringLiteral("Menu"));
    menuButton->setText(tr("Menu"));
    menuButton->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(menuButton);
    for (const QString &entry : {tr("First"), tr("Second"), tr("Third")})
        menu->addAction(entry, this, [this, entry] { log(tr("menu: %1").arg(entry)); });
    menuButton->setMenu(menu);
    addTrial(grid, {menuButton},
             tr("Open the menu and close it by a click elsewhere: the button does not keep its "
                "hover look."));

    auto *whole = new QSpinBox(this);
    whole->setRange(-1000, 1000);
    whole->setAccessibleName(tr("Whole number"));
    watch(whole, &QSpinBox::valueChanged, QStringLiteral("valueChanged"));
    auto *fraction = new QDoubleSpinBox(this);
    fraction->setRange(-1000, 1000);
    fraction->setAccessibleName(tr("Fraction"));
    watch(fraction, &QDoubleSpinBox::valueChanged, QStringLiteral("valueChanged"));
    addTrial(grid, {whole, fraction},
             tr("Home, End and the arrows stay with the field that is edited, whatever shortcuts "
                "there are."));
}

void WindowsPage::addSizes()
{
    QVBoxLayout *section =
        addSection(tr("Sizes"), tr("Buttons that share one size whatever their texts, and a list "
                                   "that is made taller by dragging the handle below it, or by the "
                                   "up and down keys while the handle has the focus."));
    auto *row = new QHBoxLayout;
    auto *controller = new SameSizeController(this);
    controller->setSameSizeDirection(Qt::Horizontal | Qt::Vertical);
    for (const QString &text : {tr("One"), tr("Twenty-two"), tr("Three hundred and thirty")})
        row->addWidget(new SameSizeButton(text, controller, this));
    row->addStretch(1);
    section->addLayout(row);

    auto *list = new QListWidget(this);
    list->addItems({tr("Copy, cut, paste"), tr("or delete here:"), tr("the log shows it")});
    list->setAccessibleName(tr("Resizable list"));
    list->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    auto *resizable = new ZelDirectedResizeWidget(Qt::Vertical, this);
    resizable->setWidget(list);
    section->addWidget(resizable);
    // The filters belong to the view that they listen to.
    auto *copyPaste = new ZelCopyPasteEventFilter(list);
    watch(copyPaste, &ZelCopyPasteEventFilter::copyPressed, QStringLiteral("copyPressed"));
    watch(copyPaste, &ZelCopyPasteEventFilter::cutPressed, QStringLiteral("cutPressed"));
    watch(copyPaste, &ZelCopyPasteEventFilter::pastePressed, QStringLiteral("pastePressed"));
    auto *deletion = new ZelDeleteEventFilter(list);
    watch(deletion, &ZelDeleteEventFilter::deletePressed, QStringLiteral("deletePressed"));
}

void WindowsPage::addKeys()
{
    QGridLayout *grid = addTrials(tr("Keys and cursors"));
    auto *edit = new QLineEdit(this);
    edit->setPlaceholderText(tr("Enter or Escape"));
    edit->setAccessibleName(tr("Field with key signals"));
    auto *filter = new KeyToSignalFilter(edit);
    watch(filter, &KeyToSignalFilter::enterPressed, QStringLiteral("enterPressed"));
    watch(filter, &KeyToSignalFilter::escapePressed, QStringLiteral("escapePressed"));
    addTrial(grid, {edit}, tr("Enter and Escape in this field become signals."));

    auto *keys = new ZelPushButton(tr("Last key"), this);
    connect(keys, &QPushButton::clicked, this, [this] {
        const auto key = KeyStateInformation::lastKeyPress();
        log(tr("last key press: %1").arg(QKeySequence(key->key()).toString()));
    });
    addTrial(grid, {keys}, tr("Logs the key that was pressed last, anywhere in the program."));

    auto *cursor = new QCheckBox(tr("Cross cursor with Control"), this);
    connect(cursor, &QCheckBox::toggled, this, [this](bool on) {
        if (on) {
            auto *state = new ZelCursorState(Qt::CrossCursor, Qt::ControlModifier, 50);
            state->setParent(this);
        } else {
            qDeleteAll(findChildren<ZelCursorState *>());
        }
    });
    addTrial(grid, {cursor}, tr("While it is checked, holding Control shows a cross."));
}

void WindowsPage::addServices()
{
    QGridLayout *grid = addTrials(tr("Timer and keep-awake"));
    auto *timer = new ZelAdaptiveTimer(4000, this);
    auto *ticks = new QCheckBox(tr("Slowing timer"), this);
    connect(timer, &QTimer::timeout, this,
            [this, timer] { log(tr("timeout after %1 ms").arg(timer->interval())); });
    connect(ticks, &QCheckBox::toggled, timer, [timer](bool on) {
        if (on)
            timer->start(250);
        else
            timer->stop();
    });
    addTrial(grid, {ticks},
             tr("Logs each timeout; the interval doubles from a quarter of a second to four "
                "seconds."));

    auto *awake = new QCheckBox(tr("Keep the machine awake"), this);
    connect(awake, &QCheckBox::toggled, this, [this](bool on) {
        if (on)
            sleep_->start();
        else
            sleep_->stop();
        log(sleep_->isActive() ? tr("keep awake: on") : tr("keep awake: off"));
    });
    addTrial(grid, {awake},
             tr("Asks the desktop not to sleep; does nothing where there is no such service."));
}
