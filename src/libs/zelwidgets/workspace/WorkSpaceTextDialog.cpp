#include "workspace/WorkSpaceTextDialog.h"

#include "workspace/WorkSpaceNames.h"

#include <QCursor>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QShowEvent>
#include <QVBoxLayout>

#include <algorithm>

namespace {

bool isName(const QString &text)
{
    return !text.trimmed().isEmpty();
}

} // namespace

WorkSpaceTextDialog::WorkSpaceTextDialog(const QString &title, const QString &label,
                                         const QString &proposal, QWidget *parent)
    : QDialog(parent, Qt::Tool | Qt::FramelessWindowHint)
    , edit_(new QLineEdit(this))
{
    setWindowTitle(title);
    auto *group = new QGroupBox(title, this);
    group->setObjectName(QStringLiteral("WorkSpaceTextDialogGrp"));
    auto *prompt = new QLabel(label, this);
    prompt->setBuddy(edit_);
    edit_->setMaxLength(WorkSpaceNames::maximumLength);
    edit_->setText(proposal);
    edit_->selectAll();
    edit_->setAccessibleName(label);

    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    // The button that this belongs to hands its alignment down.
    buttons->setStyleSheet(QStringLiteral("text-align: center;"));
    QPushButton *ok = buttons->button(QDialogButtonBox::Ok);
    ok->setDefault(true);
    ok->setEnabled(isName(edit_->text()));
    connect(edit_, &QLineEdit::textChanged, ok,
            [ok](const QString &text) { ok->setEnabled(isName(text)); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *row = new QHBoxLayout;
    row->addStretch();
    row->addWidget(buttons);
    auto *content = new QVBoxLayout(group);
    content->addWidget(prompt);
    content->addWidget(edit_);
    content->addLayout(row);
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(group);
    edit_->setFocus();
}

QString WorkSpaceTextDialog::text() const
{
    return edit_->text();
}

void WorkSpaceTextDialog::showEvent(QShowEvent *event)
{
    if (!event->spontaneous())
        moveToOpener();
    QDialog::showEvent(event);
}

void WorkSpaceTextDialog::moveToOpener()
{
    const QWidget *opener = parentWidget();
    QPoint place = QCursor::pos();
    if (opener)
        place =
            opener->mapToGlobal(QPoint(0, opener->height())) - QPoint(0, fontMetrics().height());
    const QScreen *target = QGuiApplication::screenAt(place);
    if (!target)
        target = screen();
    // Up or aside where there is no room, but the upper left corner stays in sight.
    const QRect area = target->availableGeometry();
    place.setX(std::max(std::min(place.x(), area.x() + area.width() - width()), area.x()));
    place.setY(std::max(std::min(place.y(), area.y() + area.height() - height()), area.y()));
    move(place);
}
