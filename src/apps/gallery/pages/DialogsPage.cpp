#include "DialogsPage.h"

#include <ZelWidgets/ZelAuthenticationDialog>
#include <ZelWidgets/ZelBorderDialog>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelDeleteItemsDialog>
#include <ZelWidgets/ZelPasswordDialog>
#include <ZelWidgets/ZelPushButton>

#include <QCheckBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int manyItems = 500;

QHBoxLayout *addRow(QVBoxLayout *section)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    section->addLayout(row);
    return row;
}

QLabel *addResult(QVBoxLayout *section, const QString &text)
{
    auto *label = new QLabel(text);
    label->setProperty("dim", true);
    section->addWidget(label);
    return label;
}

} // namespace

DialogsPage::DialogsPage(QWidget *parent)
    : GalleryPage(parent)
{
    addCredentials();
    addDeletion();
    addFrameless();
    addStretch();
    leaveWheelToScrolling();
}

QAbstractButton *DialogsPage::createButton(const QString &text, const std::function<void()> &slot)
{
    auto *button = new ZelPushButton(text, this);
    connect(button, &QPushButton::clicked, this, slot);
    return button;
}

void DialogsPage::tell(QLabel *label, const QString &text)
{
    label->setText(text);
    log(text);
}

void DialogsPage::addCredentials()
{
    QVBoxLayout *section = addSection(
        tr("Credentials"), tr("The dialogs forget what was entered when they close. Where the "
                              "system tells it, the password fields warn of Caps Lock."));
    QHBoxLayout *row = addRow(section);
    row->addWidget(createButton(tr("Network &credentials..."), [this] { askCredentials(); }));
    row->addWidget(createButton(tr("&New password..."), [this] { askPassword(); }));
    row->addStretch(1);
    credentials_ = addResult(section, tr("Nothing was asked yet."));
}

void DialogsPage::askCredentials()
{
    auto *dialog = new ZelAuthenticationDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this, dialog](int result) {
        if (result != QDialog::Accepted) {
            tell(credentials_, tr("Credentials: cancelled"));
            return;
        }
        tell(credentials_,
             tr("Credentials: %1, %2")
                 .arg(dialog->getUser().isEmpty() ? tr("no user") : tr("a user"),
                      dialog->getPassword().isEmpty() ? tr("no password") : tr("a password")));
    });
    dialog->open();
}

void DialogsPage::askPassword()
{
    auto *dialog = new ZelPasswordDialog(this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this, dialog](int result) {
        const bool isSet = result == QDialog::Accepted && !dialog->password().isEmpty();
        tell(credentials_, isSet ? tr("Password: set") : tr("Password: cancelled"));
    });
    dialog->open();
}

void DialogsPage::addDeletion()
{
    QVBoxLayout *section =
        addSection(tr("Deleting items"), tr("Enter and Escape cancel; Delete takes a click, or the "
                                            "space bar once the Tab key has reached it."));
    QHBoxLayout *row = addRow(section);
    row->addWidget(createButton(tr("A f&ew..."), [this] {
        askDeletion({tr("Brass"), tr("Oak, oiled"), tr("Frosted glass")});
    }));
    row->addWidget(createButton(tr("&Many..."), [this] {
        QStringList items;
        for (int i = 1; i <= manyItems; ++i)
            items.append(tr("Material %1").arg(i));
        askDeletion(items);
    }));
    row->addWidget(createButton(tr("&Long names..."), [this] {
        const QString folder = QStringLiteral("library/") + tr("materials of the spring range/");
        askDeletion({folder.repeated(3) + tr("brass"), folder.repeated(4) + tr("oak")});
    }));
    row->addStretch(1);
    deletion_ = addResult(section, tr("Nothing was deleted."));
}

void DialogsPage::askDeletion(const QStringList &items)
{
    auto *dialog = new ZelDeleteItemsDialog(
        this, items, tr("Delete Materials"),
        tr("These materials are still used by the scene. Delete them all the same?"));
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &QDialog::finished, this, [this, count = items.size()](int result) {
        tell(deletion_, result == QDialog::Accepted ? tr("Deleted: %1 materials").arg(count)
                                                    : tr("Nothing was deleted."));
    });
    dialog->open();
}

QSpinBox *DialogsPage::createNumber(int lowest, int highest, int value)
{
    auto *number = new QSpinBox(this);
    number->setRange(lowest, highest);
    number->setValue(value);
    number->setSuffix(tr(" px"));
    connect(number, qOverload<int>(&QSpinBox::valueChanged), this, &DialogsPage::updateShadow);
    return number;
}

void DialogsPage::addFrameless()
{
    QVBoxLayout *section = addSection(
        tr("Frameless dialog"), tr("The settings reach the open dialog at once. The shadow is "
                                   "smooth where windows can be translucent."));
    const ZelBorderDialog sample;
    shadow_ = new QCheckBox(tr("Drop &shadow"), this);
    shadow_->setChecked(true);
    connect(shadow_, &QCheckBox::toggled, this, &DialogsPage::updateShadow);
    blur_ = createNumber(0, 80, int(sample.shadowBlurRadius()));
    offsetX_ = createNumber(-40, 40, int(sample.shadowOffsetX()));
    offsetY_ = createNumber(-40, 40, int(sample.shadowOffsetY()));
    color_ = new ZelComboBox(this);
    color_->addItem(tr("Black"), sample.shadowColor());
    color_->addItem(tr("Blue"), QColor(0x20, 0x60, 0xe0, 0xb0));
    connect(color_, &QComboBox::currentIndexChanged, this, &DialogsPage::updateShadow);
    section->addWidget(shadow_);
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::FieldsStayAtSizeHint);
    form->addRow(tr("&Blur"), blur_);
    form->addRow(tr("To the &right"), offsetX_);
    form->addRow(tr("&Down"), offsetY_);
    form->addRow(tr("C&olour"), color_);
    section->addLayout(form);
    QHBoxLayout *row = addRow(section);
    row->addWidget(createButton(tr("Sho&w"), [this] { showFrameless(); }));
    row->addStretch(1);
}

void DialogsPage::showFrameless()
{
    if (!frameless_) {
        frameless_ = new ZelBorderDialog(this);
        frameless_->setAttribute(Qt::WA_DeleteOnClose);
        frameless_->setWindowTitle(tr("Frameless dialog"));
        auto *layout = new QVBoxLayout(frameless_);
        layout->setContentsMargins(16, 16, 16, 16);
        layout->setSpacing(12);
        auto *heading = new QLabel(tr("Tip of the day"), frameless_);
        heading->setProperty("heading", true);
        layout->addWidget(heading);
        layout->addWidget(
            new QLabel(tr("Hold Control to turn a number with the wheel."), frameless_));
        auto *close = new ZelPushButton(tr("Close"), frameless_);
        connect(close, &QPushButton::clicked, frameless_.data(), &QDialog::accept);
        layout->addWidget(close, 0, Qt::AlignRight);
    }
    updateShadow();
    frameless_->show();
    frameless_->raise();
    frameless_->activateWindow();
}

void DialogsPage::updateShadow()
{
    if (!frameless_)
        return;
    frameless_->setShadowBlurRadius(blur_->value());
    frameless_->setShadowOffsetX(offsetX_->value());
    frameless_->setShadowOffsetY(offsetY_->value());
    frameless_->setShadowColor(color_->currentData().value<QColor>());
    frameless_->enableDropShadow(shadow_->isChecked());
    frameless_->adjustSize();
}
