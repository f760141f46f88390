#include "ZelMessageDialog.h"

#include "ZelDialogTextCopier.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>

namespace {

constexpr int smallestWidth = 300;
/// A longer line is wrapped.
constexpr int longestLine = 80;

} // namespace

ZelMessageDialog::ZelMessageDialog(QWidget *parent, const QString &title, const QString &text,
                                   bool offerDontShowAgain,
                                   QDialogButtonBox::StandardButtons buttons, bool showIcon)
    : QDialog(parent, Qt::Dialog | Qt::WindowTitleHint | Qt::CustomizeWindowHint)
    , buttons_(new QDialogButtonBox(buttons, this))
{
    setWindowTitle(title);
    setMinimumWidth(smallestWidth);
    auto *layout = new QVBoxLayout(this);
    layout->addLayout(createMessage(text, showIcon));
    auto *row = new QHBoxLayout;
    if (offerDontShowAgain) {
        dontShowAgain_ = new QCheckBox(tr("Don't Show Again"), this);
        row->addWidget(dontShowAgain_, 0, Qt::AlignLeft);
    }
    row->addWidget(buttons_, 0, Qt::AlignRight);
    layout->addLayout(row);
    connect(buttons_, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons_, &QDialogButtonBox::rejected, this, &QDialog::reject);
    new ZelDialogTextCopier(this);
}

QLayout *ZelMessageDialog::createMessage(const QString &text, bool showIcon)
{
    auto *row = new QHBoxLayout;
    if (showIcon) {
        const int extent = style()->pixelMetric(QStyle::PM_MessageBoxIconSize, nullptr, this);
        auto *icon = new QLabel(this);
        icon->setPixmap(style()
                            ->standardIcon(QStyle::SP_MessageBoxWarning, nullptr, this)
                            .pixmap(QSize(extent, extent), devicePixelRatio()));
        row->addWidget(icon, 0, Qt::AlignTop);
    }
    auto *label = new QLabel(text, this);
    label->setTextInteractionFlags(Qt::TextInteractionFlags(
        style()->styleHint(QStyle::SH_MessageBox_TextInteractionFlags, nullptr, this)));
    label->setOpenExternalLinks(true);
    const int widest = fontMetrics().averageCharWidth() * longestLine;
    if (label->sizeHint().width() > widest) {
        label->setWordWrap(true);
        label->setMinimumWidth(widest);
    }
    row->addWidget(label, 1);
    return row;
}

bool ZelMessageDialog::dontShowAgain() const
{
    return !dontShowAgain_ || dontShowAgain_->isChecked();
}

void ZelMessageDialog::setButtonName(QDialogButtonBox::StandardButton button, const QString &name)
{
    if (QPushButton *present = buttons_->button(button))
        present->setText(name);
}
