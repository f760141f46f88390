#include "NotificationsPage.h"

#include "NotificationStrip.h"

#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelStyleIcon>

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QVBoxLayout>

#include <array>

namespace {

struct Sample
{
    const char *icon;
    const char *toolTip;
    int priority;
};

constexpr std::array<Sample, 4> samples{{
    {"warning", QT_TRANSLATE_NOOP("NotificationsPage", "Two textures are missing"), 10},
    {"success", QT_TRANSLATE_NOOP("NotificationsPage", "The picture is ready"), 20},
    {"error", QT_TRANSLATE_NOOP("NotificationsPage", "The render node doesn't answer"), 0},
    {"save", QT_TRANSLATE_NOOP("NotificationsPage", "The scene was saved by itself"), 30},
}};

QString entryText(const ZelNotificationAction *action)
{
    if (!action)
        return NotificationsPage::tr("(gone)");
    QStringList parts{
        NotificationsPage::tr("%1: %2").arg(action->priority()).arg(action->toolTip())};
    if (action->hasFlag(ZelNotificationAction::Toggle))
        parts.append(action->toggleState() ? NotificationsPage::tr("on")
                                           : NotificationsPage::tr("off"));
    if (!action->isVisible())
        parts.append(NotificationsPage::tr("hidden"));
    return parts.join(QStringLiteral(", "));
}

} // namespace

NotificationsPage::NotificationsPage(QWidget *parent)
    : GalleryPage(parent)
    , list_(this)
{
    list_.setObjectName(tr("Notifications"));
    addAction(QStringLiteral("info"), tr("A new version is there"), 20);
    ZelNotificationAction *pause =
        addAction(QStringLiteral("stop"), tr("Pause the render queue"), 5);
    pause->setFlag(ZelNotificationAction::Toggle, true);
    addStrip();
    addEntries();
    addStretch();
    connect(&list_, &ZelNotificationList::changed, this, &NotificationsPage::refresh);
    refresh();
    entries_->setCurrentRow(0);
    watch(&list_, &ZelNotificationList::changed, QStringLiteral("changed"));
    leaveWheelToScrolling();
}

void NotificationsPage::addStrip()
{
    QVBoxLayout *section =
        addSection(tr("Strip"), tr("The visible actions of the list, lowest number first. A click "
                                   "triggers the action; toggles stay pressed."));
    strip_ = new NotificationStrip(&list_, this);
    section->addWidget(strip_);
}

void NotificationsPage::addEntries()
{
    QVBoxLayout *section = addSection(
        tr("Entries"), tr("All that the list holds. It doesn't own its actions: one that is "
                          "destroyed leaves an empty entry, until the list is pruned."));
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    entries_ = new QListWidget(this);
    entries_->setAccessibleName(tr("Entries"));
    entries_->setFixedHeight(fontMetrics().lineSpacing() * 10);
    connect(entries_, &QListWidget::currentRowChanged, this, &NotificationsPage::select);
    row->addWidget(entries_, 1);
    properties_ = createProperties();
    row->addWidget(properties_, 0, Qt::AlignTop);
    section->addLayout(row);

    row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(createButton(tr("&Add"), [this] { addSample(); }));
    needCurrent_ = {
        createButton(tr("Tri&gger"), [this] { list_.trigger(entries_->currentRow()); }),
        createButton(tr("&Remove"),
                     [this] {
                         current_->deleteLater();
                         list_.removeAction(current_);
                     }),
        createButton(tr("&Destroy"),
                     [this] {
                         delete current_;
                         refresh();
                     }),
    };
    for (QAbstractButton *button : std::as_const(needCurrent_))
        row->addWidget(button);
    row->addWidget(createButton(tr("&Prune"), [this] {
        list_.pruneActions();
        refresh();
    }));
    row->addStretch(1);
    section->addLayout(row);
    count_ = new QLabel(this);
    count_->setProperty("dim", true);
    section->addWidget(count_);
}

QWidget *NotificationsPage::createProperties()
{
    auto *panel = new QWidget(this);
    auto *form = new QFormLayout(panel);
    form->setContentsMargins(0, 0, 0, 0);
    priority_ = new QSpinBox(panel);
    priority_->setRange(-99, 99);
    form->addRow(tr("Pr&iority"), priority_);
    visible_ = new QCheckBox(tr("Vi&sible"), panel);
    form->addRow(visible_);
    toggle_ = new QCheckBox(tr("T&oggle"), panel);
    form->addRow(toggle_);
    connect(priority_, qOverload<int>(&QSpinBox::valueChanged), this, [this](int priority) {
        if (current_)
            current_->setPriority(priority);
    });
    connect(visible_, &QCheckBox::toggled, this, [this](bool on) {
        if (current_)
            current_->setVisible(on);
    });
    connect(toggle_, &QCheckBox::toggled, this, [this](bool on) {
        if (current_)
            current_->setFlag(ZelNotificationAction::Toggle, on);
    });
    return panel;
}

QAbstractButton *NotificationsPage::createButton(const QString &text,
                                                 const std::function<void()> &slot)
{
    auto *button = new ZelPushButton(text, this);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

ZelNotificationAction *NotificationsPage::addAction(const QString &icon, const QString &toolTip,
                                                    int priority)
{
    const ZelStyleIcon picture(QStringLiteral(":/ui/icons/%1.svg").arg(icon));
    auto *action = new ZelNotificationAction(picture, toolTip, this);
    action->setObjectName(toolTip);
    action->setPriority(priority);
    action->setVisible(true);
    watch(action, &ZelNotificationAction::triggered, QStringLiteral("triggered"));
    watch(action, &ZelNotificationAction::changed, QStringLiteral("changed"));
    watch(action, &ZelNotificationAction::priorityChanged, QStringLiteral("priorityChanged"));
    list_.addAction(action);
    return action;
}

void NotificationsPage::addSample()
{
    const Sample &sample = samples[std::size_t(samples_++) % samples.size()];
    current_ = nullptr;
    ZelNotificationAction *action =
        addAction(QLatin1String(sample.icon), tr(sample.toolTip), sample.priority);
    current_ = action;
    refresh();
}

void NotificationsPage::select(int row)
{
    // The list answers with constant actions; those of this page are its children.
    current_ = const_cast<ZelNotificationAction *>(list_.at(row));
    properties_->setEnabled(current_);
    for (QAbstractButton *button : std::as_const(needCurrent_))
        button->setEnabled(current_);
    if (!current_)
        return;
    const QSignalBlocker priorityBlocker(priority_);
    const QSignalBlocker visibleBlocker(visible_);
    const QSignalBlocker toggleBlocker(toggle_);
    priority_->setValue(current_->priority());
    visible_->setChecked(current_->isVisible());
    toggle_->setChecked(current_->hasFlag(ZelNotificationAction::Toggle));
}

void NotificationsPage::refresh()
{
    strip_->refresh();
    int row = std::min(entries_->currentRow(), list_.size() - 1);
    int gone = 0;
    {
        const QSignalBlocker blocker(entries_);
        entries_->clear();
        for (int i = 0; i < list_.size(); ++i) {
            entries_->addItem(entryText(list_.at(i)));
            gone += !list_.at(i);
            if (current_ && list_.at(i) == current_)
                row = i;
        }
        entries_->setCurrentRow(row);
    }
    select(row);
    count_->setText(tr("%1 entries, %2 of them gone").arg(list_.size()).arg(gone));
}
