#include "MouseGesturesPage.h"

#include "GestureView.h"

#include <ZelWidgets/ViewCtrl>
#include <ZelWidgets/ZelMouseActionSettings>
#include <ZelWidgets/ZelShortcutGuiHelper>
#include <ZelWidgets/ZelShortcutTreeItem>

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QSignalBlocker>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr int modeCount = 14;
constexpr int tableRows = 8;
constexpr std::array modifierValues{Qt::AltModifier, Qt::ControlModifier, Qt::ShiftModifier};
constexpr std::array buttonValues{Qt::LeftButton, Qt::MiddleButton, Qt::RightButton};
constexpr std::array digitValues{Qt::Key_unknown, Qt::Key_1, Qt::Key_2, Qt::Key_3};

QString nameOf(const ZelMouseAction *action)
{
    return action ? QStringLiteral("%1 (%2)").arg(action->text(), action->id())
                  : MouseGesturesPage::tr("no action");
}

/// The ids of all gestures that the registry knows, in the order of the editor.
QStringList gestureIds()
{
    QTreeWidget tree;
    ZelShortcutGuiHelper::buildTree(&tree);
    QStringList ids;
    for (QTreeWidgetItemIterator it(&tree); *it; ++it) {
        const auto *item = dynamic_cast<ZelShortcutTreeItem *>(*it);
        if (item && item->isMouseShortcut())
            ids += item->id();
    }
    return ids;
}

} // namespace

MouseGesturesPage::MouseGesturesPage(QWidget *parent)
    : GalleryPage(parent)
{
    addView();
    addPicker();
    addTable();
    showPicked();
    fillTable();
    addStretch();
}

void MouseGesturesPage::addView()
{
    QVBoxLayout *section = addSection(
        tr("Viewport"), tr("Click, drag and turn the wheel here, with Alt, Ctrl and Shift, or with "
                           "1 or 2 held down: the action that the view would start is named."));
    view_ = new GestureView(this);
    view_->setObjectName(QStringLiteral("GestureView"));
    view_->setAccessibleName(tr("Viewport"));
    view_->setText(tr("Nothing yet"));
    section->addWidget(view_);
    connect(view_, &GestureView::gestureMade, this, &MouseGesturesPage::showMade);
}

QCheckBox *MouseGesturesPage::createCheck(const QString &name, const QString &accessibleName)
{
    auto *check = new QCheckBox(name, this);
    check->setAccessibleName(accessibleName);
    connect(check, &QCheckBox::toggled, this, &MouseGesturesPage::showPicked);
    return check;
}

void MouseGesturesPage::addPicker()
{
    QVBoxLayout *section =
        addSection(tr("A gesture by hand"), tr("The same question without a mouse."));
    event_ = new QComboBox(this);
    event_->setObjectName(QStringLiteral("GestureEvent"));
    event_->setAccessibleName(tr("Event"));
    event_->addItems({tr("Left click"), tr("Right click"), tr("Centre click"), tr("Double click"),
                      tr("Wheel"), tr("Drag")});
    digit_ = new QComboBox(this);
    digit_->setObjectName(QStringLiteral("GestureDigit"));
    digit_->setAccessibleName(tr("Held key"));
    digit_->addItems({tr("no key held"), tr("1 held"), tr("2 held"), tr("3 held")});
    for (const QString &name : {tr("Alt"), tr("Ctrl"), tr("Shift")})
        modifiers_ += createCheck(name, tr("%1 held").arg(name));
    for (const QString &name : {tr("Left"), tr("Middle"), tr("Right")})
        buttons_ += createCheck(name, tr("%1 button held").arg(name));
    auto *row = new QHBoxLayout;
    row->addWidget(event_);
    row->addWidget(digit_);
    for (QCheckBox *check : modifiers_ + buttons_)
        row->addWidget(check);
    row->addStretch();
    section->addLayout(row);
    found_ = new QLabel(this);
    found_->setObjectName(QStringLiteral("GestureFound"));
    found_->setWordWrap(true);
    section->addWidget(found_);
    connect(event_, &QComboBox::currentIndexChanged, this, &MouseGesturesPage::showPicked);
    connect(digit_, &QComboBox::currentIndexChanged, this, &MouseGesturesPage::showPicked);
}

void MouseGesturesPage::addTable()
{
    QVBoxLayout *section =
        addSection(tr("Gestures in force"),
                   tr("A preset of the camera rewrites four of the gestures; \"own gestures\" are "
                      "those of the page \"Shortcuts\"."));
    mode_ = new QComboBox(this);
    mode_->setObjectName(QStringLiteral("GestureMode"));
    mode_->setAccessibleName(tr("Camera preset"));
    mode_->addItem(tr("own gestures"));
    for (int mode = 1; mode < modeCount; ++mode)
        mode_->addItem(tr("Preset %1").arg(mode));
    section->addWidget(mode_, 0, Qt::AlignLeft);
    table_ = new QTreeWidget(this);
    table_->setObjectName(QStringLiteral("GestureTable"));
    table_->setAccessibleName(tr("Gestures in force"));
    table_->setRootIsDecorated(false);
    table_->setUniformRowHeights(true);
    table_->setHeaderLabels({tr("Action"), tr("Gesture"), tr("State")});
    table_->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    table_->setMinimumHeight(tableRows * table_->fontMetrics().lineSpacing() * 2);
    section->addWidget(table_);
    connect(mode_, &QComboBox::activated, this, &MouseGesturesPage::chooseMode);
}

ZelMouseShortcut MouseGesturesPage::pickedGesture() const
{
    Qt::KeyboardModifiers modifiers;
    for (std::size_t i = 0; i < modifierValues.size(); ++i)
        modifiers.setFlag(modifierValues[i], modifiers_[static_cast<int>(i)]->isChecked());
    Qt::MouseButtons buttons;
    for (std::size_t i = 0; i < buttonValues.size(); ++i)
        buttons.setFlag(buttonValues[i], buttons_[static_cast<int>(i)]->isChecked());
    const Qt::Key digit = digitValues[static_cast<std::size_t>(digit_->currentIndex())];
    const auto event = static_cast<ZelMouseShortcut::MouseEventAction>(event_->currentIndex());
    return {event, QKeyCombination(modifiers, digit), buttons};
}

void MouseGesturesPage::showPicked()
{
    const ZelMouseShortcut gesture = pickedGesture();
    const auto *action = ZelMouseActionSettings::instance()->findAction(
        gesture.getEvent(), gesture.getMouseModifiers(), gesture.getKeyCombination());
    found_->setText(tr("%1: %2").arg(gesture.publicShortcutText(), nameOf(action)));
}

void MouseGesturesPage::showMade(const ZelMouseShortcut &gesture, const ZelMouseAction *action)
{
    const QString text = gesture.publicShortcutText();
    view_->setText(QStringLiteral("%1\n%2").arg(text, nameOf(action)));
    log(QStringLiteral("%1: %2").arg(text, nameOf(action)));
}

void MouseGesturesPage::chooseMode(int mode)
{
    auto *settings = ViewCtrl::Settings::instance();
    settings->setViewMode(static_cast<ViewCtrl::ViewMode>(mode));
    log(tr("Camera preset %1, dolly mode %2")
            .arg(mode)
            .arg(static_cast<int>(settings->dollyZoomInMode())));
    fillTable();
    showPicked();
}

void MouseGesturesPage::fillTable()
{
    mode_->setCurrentIndex(static_cast<int>(ViewCtrl::Settings::instance()->viewMode()));
    table_->clear();
    for (const QString &id : gestureIds()) {
        const auto *action = ZelMouseActionSettings::instance()->findById(id);
        if (!action)
            continue;
        auto *row = new QTreeWidgetItem(table_, {action->text(), action->publicShortcutText(),
                                                 action->enabled() ? tr("on") : tr("off")});
        row->setToolTip(0, id);
    }
}

void MouseGesturesPage::showEvent(QShowEvent *event)
{
    GalleryPage::showEvent(event);
    // The editor may have changed them meanwhile.
    fillTable();
    showPicked();
}
