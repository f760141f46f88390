#include "ZelShortcutFilterBar.h"

#include "ZelCheckBox.h"
#include "ZelKeyRecorder.h"
#include "ZelSearchLineEdit.h"
#include "ZelToolButton.h"
#include "theme/ZelStyleIcon.h"

#include <QGridLayout>
#include <QLabel>

ZelShortcutFilterBar::ZelShortcutFilterBar(QWidget *parent)
    : QWidget(parent)
    , search_(new ZelSearchLineEdit(this))
    , keys_(new ZelKeyRecorder(this))
    , clearKeys_(new ZelToolButton(ZelToolButton::Flat, this))
    , count_(new QLabel(this))
{
    search_->setObjectName(QStringLiteral("ShortcutSearch"));
    search_->setPlaceholderText(tr("Search by name or key"));
    search_->setAccessibleName(tr("Search shortcuts"));
    keys_->setObjectName(QStringLiteral("ShortcutKeyFilter"));
    keys_->setAccessibleName(tr("Search by pressing keys"));
    keys_->setAccessibleDescription(tr("Press Return or Space, then the keys to look for."));
    keys_->setToolTip(tr("Click here, or press Return, then press the keys to look for"));
    clearKeys_->setIcon(ZelStyleIcon(QStringLiteral(":/ui/icons/close.svg")));
    clearKeys_->setToolTip(tr("Forget the keys"));
    clearKeys_->setAccessibleName(tr("Forget the keys"));
    clearKeys_->setFocusPolicy(Qt::StrongFocus);
    clearKeys_->setEnabled(false);
    auto *label = new QLabel(tr("By &keys"), this);
    label->setBuddy(keys_);
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(search_, 0, 0);
    layout->addWidget(label, 0, 1);
    layout->addWidget(keys_, 0, 2);
    layout->addWidget(clearKeys_, 0, 3);
    auto *checks = new QHBoxLayout;
    checks->addWidget(addCheckBox(tr("Only c&hanged"), &ZelShortcutFilter::onlyChanged));
    checks->addWidget(addCheckBox(tr("Only c&onflicts"), &ZelShortcutFilter::onlyConflicts));
    checks->addStretch(1);
    checks->addWidget(count_);
    layout->addLayout(checks, 1, 0, 1, 4);
    layout->setColumnStretch(0, 3);
    layout->setColumnStretch(2, 2);

    connect(search_, &QLineEdit::textChanged, this, [this](const QString &text) {
        filter_.setText(text);
        Q_EMIT changed();
    });
    connect(search_, &QLineEdit::returnPressed, this, &ZelShortcutFilterBar::left);
    connect(keys_, &ZelKeyRecorder::recorded, this, &ZelShortcutFilterBar::setKeys);
    connect(keys_, &ZelKeyRecorder::finished, this, [this](const QKeySequence &keys) {
        setKeys(keys);
        if (keys_->hasFocus() && !keys.isEmpty())
            Q_EMIT left();
    });
    connect(clearKeys_, &QToolButton::clicked, this, [this] {
        keys_->reset();
        keys_->setFocus(Qt::OtherFocusReason);
        setKeys({});
    });
}

QCheckBox *ZelShortcutFilterBar::addCheckBox(const QString &text, bool ZelShortcutFilter::*flag)
{
    auto *box = new ZelCheckBox(text);
    connect(box, &QCheckBox::toggled, this, [this, flag](bool on) {
        filter_.*flag = on;
        Q_EMIT changed();
    });
    return box;
}

void ZelShortcutFilterBar::setKeys(const QKeySequence &keys)
{
    clearKeys_->setEnabled(!keys.isEmpty());
    if (keys == filter_.key)
        return;
    filter_.key = keys;
    Q_EMIT changed();
}

void ZelShortcutFilterBar::setCount(int shown, int all)
{
    count_->setText(shown == all ? tr("%1 shortcuts").arg(all)
                                 : tr("%1 of %2 shortcuts").arg(shown).arg(all));
}
