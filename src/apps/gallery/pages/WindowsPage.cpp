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
#include <ZelWidgets/ZelWindowPlacement>

#include <QCheckBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QScreen>
#include <QToolButton>
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
    addSleep();
    addStretch();
}

QPushButton *WindowsPage::addButton(QBoxLayout *row, const QString &text,
                                    void (WindowsPage::*action)())
{
    auto *button = new ZelPushButton(text, this);
    connect(button, &QPushButton::clicked, this, action);
    row->addWidget(button);
    return button;
}

QWidget *WindowsPage::createWindow(const QString &title)
{
    auto *window = new QDialog(this, Qt::Window);
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(title);
    auto *layout = new QVBoxLayout(window);
    layout->setContentsMargins(16, 16, 16, 16);
    auto *text = new QLabel(title, window);
    text->setWordWrap(true);
    text->setMinimumWidth(fontMetrics().averageCharWidth() * 40);
    layout->addWidget(text);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Close, window);
    connect(buttons, &QDialogButtonBox::rejected, window, &QWidget::close);
    layout->addWidget(buttons);
    return window;
}

void WindowsPage::addPlacement()
{
    QVBoxLayout *section = addSection(
        tr("Placement"), tr("A window that was lost outside the screen comes back to the centre."));
    auto *row = new QHBoxLayout;
    addButton(row, tr("Window in the centre"), &WindowsPage::openCentred);
    addButton(row, tr("Window outside, put right"), &WindowsPage::openHalfOutside);
    row->addStretch(1);
    section->addLayout(row);
}

void WindowsPage::openCentred()
{
    QWidget *window = createWindow(tr("Centred on the screen"));
    centerWidgetOnScreen(window, screen());
    window->show();
}

void WindowsPage::openHalfOutside()
{
    QWidget *window = createWindow(tr("Was outside the screen"));
    window->show();
    const QRect area = screen()->availableGeometry();
    window->move(area.right() - 20, area.bottom() - 20);
    ensureNiceWidgetPosition(window);
}

void WindowsPage::addModality()
{
    QVBoxLayout *section = addSection(
        tr("Modal dialogs and always-on-top windows"),
        tr("A modal dialog hides an always-on-top tool window that lies over it, and moves out of "
           "the way of an always-on-top dialog."));
    auto *row = new QHBoxLayout;
    addButton(row, tr("Always-on-top window"), &WindowsPage::openAlwaysOnTop);
    addButton(row, tr("Modal dialog"), &WindowsPage::openModal);
    row->addStretch(1);
    section->addLayout(row);
}

void WindowsPage::openAlwaysOnTop()
{
    QWidget *window = createWindow(tr("Stays on top; open the modal dialog now"));
    window->setWindowFlags(Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint |
                           Qt::WindowStaysOnTopHint);
    window->resize(420, 260);
    centerWidgetOnScreen(window, screen());
    window->show();
}

void WindowsPage::openModal()
{
    QWidget *window = createWindow(tr("A modal dialog"));
    window->setWindowModality(Qt::ApplicationModal);
    centerWidgetOnScreen(window, screen());
    window->show();
}

void WindowsPage::addCorrections()
{
    QVBoxLayout *section = addSection(
        tr("Tool tips, editing keys and hover"),
        tr("Tool tips are sized to their text. Home, End and the arrows stay with the field that "
           "is edited. The menu's button loses its hover look when the menu closes elsewhere."));
    auto *row = new QHBoxLayout;
    auto *tip = new ZelPushButton(tr("Tool tip"), this);
    tip->setToolTip(tr("A tool tip of one line"));
    row->addWidget(tip);
    auto *menuButton = new QToolButton(this);
    menuButton->setText(tr("Menu"));
    menuButton->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(menuButton);
    for (const QString &entry : {tr("First"), tr("Second"), tr("Third")})
        menu->addAction(entry, this, [this, entry] { log(tr("menu: %1").arg(entry)); });
    menuButton->setMenu(menu);
    row->addWidget(menuButton);
    auto *whole = new QSpinBox(this);
    whole->setAccessibleName(tr("Whole number"));
    watch(whole, &QSpinBox::valueChanged, QStringLiteral("valueChanged"));
    row->addWidget(whole);
    auto *fraction = new QDoubleSpinBox(this);
    fraction->setAccessibleName(tr("Fraction"));
    watch(fraction, &QDoubleSpinBox::valueChanged, QStringLiteral("valueChanged"));
    row->addWidget(fraction);
    auto *keys = new ZelPushButton(tr("Last key"), this);
    connect(keys, &QPushButton::clicked, this, [this] {
        const auto key = KeyStateInformation::lastKeyPress();
        log(tr("last key press: %1").arg(QKeySequence(key->key()).toString()));
    });
    row->addWidget(keys);
    row->addStretch(1);
    section->addLayout(row);
}

void WindowsPage::addSizes()
{
    QVBoxLayout *section =
        addSection(tr("Sizes"), tr("Buttons of one size whatever their texts, and a field that can "
                                   "be dragged taller by its handle."));
    auto *row = new QHBoxLayout;
    auto *controller = new SameSizeController(this);
    controller->setSameSizeDirection(Qt::Horizontal | Qt::Vertical);
    for (const QString &text : {tr("One"), tr("Twenty-two"), tr("Three hundred and thirty")})
        row->addWidget(new SameSizeButton(text, controller, this));
    row->addStretch(1);
    section->addLayout(row);

    auto *list = new QListWidget(this);
    list->addItems({tr("Drag"), tr("the handle"), tr("below")});
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
    QVBoxLayout *section = addSection(
        tr("Keys and cursors"), tr("Enter and Escape in the field are signals. While the box is "
                                   "checked, holding Control shows a cross."));
    auto *row = new QHBoxLayout;
    auto *edit = new QLineEdit(this);
    edit->setPlaceholderText(tr("Press Enter or Escape"));
    edit->setAccessibleName(tr("Field with key signals"));
    auto *filter = new KeyToSignalFilter(edit);
    watch(filter, &KeyToSignalFilter::enterPressed, QStringLiteral("enterPressed"));
    watch(filter, &KeyToSignalFilter::escapePressed, QStringLiteral("escapePressed"));
    row->addWidget(edit);

    auto *cursor = new QCheckBox(tr("Cross cursor with Control"), this);
    connect(cursor, &QCheckBox::toggled, this, [this](bool on) {
        if (on) {
            auto *state = new ZelCursorState(Qt::CrossCursor, Qt::ControlModifier, 50);
            state->setParent(this);
        } else {
            qDeleteAll(findChildren<ZelCursorState *>());
        }
    });
    row->addWidget(cursor);

    auto *timer = new ZelAdaptiveTimer(4000, this);
    auto *ticks = new QCheckBox(tr("Slowing timer"), this);
    ticks->setToolTip(tr("Logs each timeout of a timer whose interval doubles up to four seconds"));
    connect(timer, &QTimer::timeout, this,
            [this, timer] { log(tr("timeout after %1 ms").arg(timer->interval())); });
    connect(ticks, &QCheckBox::toggled, timer, [timer](bool on) {
        if (on)
            timer->start(250);
        else
            timer->stop();
    });
    row->addWidget(ticks);
    row->addStretch(1);
    section->addLayout(row);
}

void WindowsPage::addSleep()
{
    QVBoxLayout *section = addSection(tr("Keep awake"));
    auto *box = new QCheckBox(tr("Keep the machine awake"), this);
    connect(box, &QCheckBox::toggled, sleep_, [this](bool on) {
        if (on)
            sleep_->start();
        else
            sleep_->stop();
    });
    section->addWidget(box);
}
