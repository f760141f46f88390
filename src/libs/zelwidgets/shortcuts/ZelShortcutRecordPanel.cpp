#include "ZelShortcutRecordPanel.h"

#include "ZelGestureChoice.h"
#include "ZelKeyRecorder.h"
#include "ZelMouseRecorder.h"
#include "theme/ZelPushButton.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QStyle>

ZelShortcutRecordPanel::ZelShortcutRecordPanel(QWidget *parent)
    : QFrame(parent)
    , idlePage_(createIdlePage())
    , recordPage_(createRecordPage())
{
    setFrameShape(QFrame::StyledPanel);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Maximum);
    auto *layout = new QVBoxLayout(this);
    layout->addWidget(idlePage_);
    layout->addWidget(recordPage_);
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
    auto *page = new QWidget(this);
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
        layout->addWidget(button);
    connect(record_, &QPushButton::clicked, this, &ZelShortcutRecordPanel::recordRequested);
    connect(reset_, &QPushButton::clicked, this, &ZelShortcutRecordPanel::resetRequested);
    connect(clear_, &QPushButton::clicked, this, &ZelShortcutRecordPanel::clearRequested);
    return page;
}

QWidget *ZelShortcutRecordPanel::createRecordPage()
{
    auto *page = new QWidget(this);
    title_ = new QLabel(page);
    title_->setTextFormat(Qt::PlainText);
    title_->setWordWrap(true);
    keys_ = new ZelKeyRecorder(page);
    keys_->setObjectName(QStringLiteral("ShortcutKeyRecorder"));
    keys_->setAccessibleName(tr("New keys"));
    gesture_ = new ZelMouseRecorder(page);
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
    layout->addWidget(keys_);
    layout->addWidget(gesture_);
    layout->addLayout(buttons);

    connect(keys_, &ZelKeyRecorder::recorded, this, &ZelShortcutRecordPanel::recorded);
    connect(keys_, &ZelKeyRecorder::finished, this, [this](const QKeySequence &sequence) {
        if (keys_->hasFocus())
            likelyAnswer(sequence.isEmpty())->setFocus(Qt::OtherFocusReason);
    });
    connect(gesture_, &ZelMouseRecorder::recorded, this, &ZelShortcutRecordPanel::recorded);
    connect(reassign_, &QPushButton::clicked, this, [this] { Q_EMIT accepted(true); });
    connect(keep_, &QPushButton::clicked, this, [this] { Q_EMIT accepted(false); });
    connect(cancel_, &QPushButton::clicked, this, &ZelShortcutRecordPanel::cancelled);
    return page;
}

/// What a user who just presses Return means.
QPushButton *ZelShortcutRecordPanel::likelyAnswer(bool isEmpty) const
{
    if (isEmpty)
        return cancel_;
    return kind_ == ZelShortcutVerdict::SameScope ? reassign_ : keep_;
}

bool ZelShortcutRecordPanel::isRecording() const
{
    return !recordPage_->isHidden();
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
    keys_->setVisible(recorder == keys_);
    gesture_->setVisible(recorder == gesture_);
    kind_ = ZelShortcutVerdict::Free;
    verdict_->clear();
    recordPage_->show();
    idlePage_->hide();
    updateButtons();
}

void ZelShortcutRecordPanel::endRecording()
{
    keys_->reset();
    idlePage_->show();
    recordPage_->hide();
}

QString ZelShortcutRecordPanel::recordedText() const
{
    if (!keys_->isHidden())
        return keys_->sequence().toString(QKeySequence::PortableText);
    const ZelMouseShortcut &gesture = gesture_->gesture();
    return ZelGestureChoice::isComplete(gesture) ? gesture.exportToString() : QString();
}

void ZelShortcutRecordPanel::setVerdict(const ZelShortcutVerdict &verdict)
{
    kind_ = verdict.kind();
    verdict_->setText(recordedText().isEmpty() ? QString() : verdict.text());
    for (QWidget *recorder : {static_cast<QWidget *>(keys_), static_cast<QWidget *>(gesture_)})
        recorder->setAccessibleDescription(verdict_->text());
    verdict_->setProperty("warning", kind_ == ZelShortcutVerdict::SameScope);
    verdict_->style()->unpolish(verdict_);
    verdict_->style()->polish(verdict_);
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
