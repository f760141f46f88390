#include "ZelShortcutRecordPanel.h"

#include "ZelGestureChoice.h"
#include "ZelKeyRecorder.h"
#include "ZelMouseRecorder.h"
#include "theme/ZelPushButton.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStackedWidget>

namespace {

enum Page { IdlePage, RecordPage };

} // namespace

ZelShortcutRecordPanel::ZelShortcutRecordPanel(QWidget *parent)
    : QFrame(parent)
    , pages_(new QStackedWidget(this))
{
    setFrameShape(QFrame::StyledPanel);
    pages_->addWidget(createIdlePage());
    pages_->addWidget(createRecordPage());
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(pages_);
    setShortcut({}, {}, true);
}

QPushButton *ZelShortcutRecordPanel::addButton(const QString &text, const char *name)
{
    auto *button = new ZelPushButton(text, this);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(true);
    return button;
}

QWidget *ZelShortcutRecordPanel::createIdlePage()
{
    auto *page = new QWidget(pages_);
    name_ = new QLabel(page);
    name_->setWordWrap(true);
    name_->setTextFormat(Qt::PlainText);
    record_ = addButton(tr("&Record"), "ShortcutRecord");
    reset_ = addButton(tr("Re&set"), "ShortcutReset");
    clear_ = addButton(tr("&Clear"), "ShortcutClear");
    auto *layout = new QHBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(name_, 1);
    for (QPushButton *button : {record_, reset_, clear_})
        layout->addWidget(button, 0, Qt::AlignTop);
    connect(record_, &QPushButton::clicked, this, &ZelShortcutRecordPanel::recordRequested);
    connect(reset_, &QPushButton::clicked, this, &ZelShortcutRecordPanel::resetRequested);
    connect(clear_, &QPushButton::clicked, this, &ZelShortcutRecordPanel::clearRequested);
    return page;
}

QWidget *ZelShortcutRecordPanel::createRecordPage()
{
    auto *page = new QWidget(pages_);
    title_ = new QLabel(page);
    title_->setTextFormat(Qt::PlainText);
    title_->setWordWrap(true);
    recorders_ = new QStackedWidget(page);
    keys_ = new ZelKeyRecorder(recorders_);
    keys_->setObjectName(QStringLiteral("ShortcutKeyRecorder"));
    keys_->setAccessibleName(tr("New keys"));
    gesture_ = new ZelMouseRecorder(recorders_);
    recorders_->addWidget(keys_);
    recorders_->addWidget(gesture_);
    verdict_ = new QLabel(page);
    verdict_->setObjectName(QStringLiteral("ShortcutVerdict"));
    verdict_->setTextFormat(Qt::PlainText);
    verdict_->setWordWrap(true);
    reassign_ = addButton(tr("&Reassign"), "ShortcutReassign");
    reassign_->setToolTip(tr("Take it, and take it away from the others"));
    keep_ = addButton(tr("Keep &Both"), "ShortcutKeep");
    cancel_ = addButton(tr("&Cancel Recording"), "ShortcutCancelRecording");
    auto *buttons = new QHBoxLayout;
    buttons->addWidget(verdict_, 1);
    for (QPushButton *button : {reassign_, keep_, cancel_})
        buttons->addWidget(button, 0, Qt::AlignTop);
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(title_);
    layout->addWidget(recorders_, 1);
    layout->addLayout(buttons);

    connect(keys_, &ZelKeyRecorder::recorded, this, &ZelShortcutRecordPanel::recorded);
    connect(keys_, &ZelKeyRecorder::finished, this, [this](const QKeySequence &sequence) {
        if (keys_->hasFocus())
            (sequence.isEmpty() ? cancel_ : keep_)->setFocus(Qt::OtherFocusReason);
    });
    connect(gesture_, &ZelMouseRecorder::recorded, this, &ZelShortcutRecordPanel::recorded);
    connect(reassign_, &QPushButton::clicked, this, [this] { Q_EMIT accepted(true); });
    connect(keep_, &QPushButton::clicked, this, [this] { Q_EMIT accepted(false); });
    connect(cancel_, &QPushButton::clicked, this, &ZelShortcutRecordPanel::cancelled);
    return page;
}

bool ZelShortcutRecordPanel::isRecording() const
{
    return pages_->currentIndex() == RecordPage;
}

void ZelShortcutRecordPanel::setShortcut(const QString &name, const QString &publicText,
                                         bool isDefault)
{
    endRecording();
    shortcutName_ = name;
    const bool isNone = name.isEmpty();
    const QString binding = publicText.isEmpty() ? tr("not set") : publicText;
    name_->setText(isNone ? tr("Choose a shortcut to change it.")
                          : tr("%1: %2").arg(name, binding));
    // A control that is switched off would pass its focus to the next one.
    record_->setEnabled(!isNone);
    reset_->setEnabled(!isNone && !isDefault);
    clear_->setEnabled(!isNone && !publicText.isEmpty());
}

void ZelShortcutRecordPanel::recordKeys()
{
    beginRecording(keys_);
    title_->setText(tr("New keys for %1").arg(shortcutName_));
    keys_->start();
}

void ZelShortcutRecordPanel::recordGesture(ZelMouseAction::Category category,
                                           const ZelMouseShortcut &current)
{
    beginRecording(gesture_);
    title_->setText(tr("New gesture for %1").arg(shortcutName_));
    gesture_->start(category, current);
    gesture_->setFocus(Qt::OtherFocusReason);
    Q_EMIT recorded();
}

void ZelShortcutRecordPanel::beginRecording(QWidget *recorder)
{
    recorders_->setCurrentWidget(recorder);
    // The page is as low as what it shows.
    for (QWidget *other : {static_cast<QWidget *>(keys_), static_cast<QWidget *>(gesture_)}) {
        const auto policy = other == recorder ? QSizePolicy::Preferred : QSizePolicy::Ignored;
        other->setSizePolicy(QSizePolicy::Preferred, policy);
    }
    kind_ = ZelShortcutVerdict::Free;
    verdict_->clear();
    pages_->setCurrentIndex(RecordPage);
    updateButtons();
}

void ZelShortcutRecordPanel::endRecording()
{
    keys_->reset();
    pages_->setCurrentIndex(IdlePage);
}

QString ZelShortcutRecordPanel::recordedText() const
{
    if (recorders_->currentWidget() == keys_)
        return keys_->sequence().toString(QKeySequence::PortableText);
    const ZelMouseShortcut &gesture = gesture_->gesture();
    return ZelGestureChoice::isComplete(gesture) ? gesture.exportToString() : QString();
}

void ZelShortcutRecordPanel::setVerdict(const ZelShortcutVerdict &verdict)
{
    kind_ = verdict.kind();
    verdict_->setText(recordedText().isEmpty() ? QString() : verdict.text());
    verdict_->setProperty("warning", kind_ == ZelShortcutVerdict::SameScope);
    updateButtons();
}

void ZelShortcutRecordPanel::updateButtons()
{
    const bool isUsed = kind_ != ZelShortcutVerdict::Free;
    reassign_->setVisible(isUsed);
    keep_->setText(isUsed ? tr("Keep &Both") : tr("Assi&gn"));
    keep_->setEnabled(!recordedText().isEmpty());
}

void ZelShortcutRecordPanel::keyPressEvent(QKeyEvent *event)
{
    if (isRecording() && event->key() == Qt::Key_Escape)
        Q_EMIT cancelled();
    else
        QFrame::keyPressEvent(event);
}
