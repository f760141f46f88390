#include "MessageBoxesPage.h"

#include "SectionRow.h"

#include <ZelCore/ZelSettings>
#include <ZelWidgets/ZelDontShowAgainDialog>
#include <ZelWidgets/ZelMessageBox>
#include <ZelWidgets/ZelMessageDialog>
#include <ZelWidgets/ZelPushButton>

#include <QButtonGroup>
#include <QCheckBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMetaEnum>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int timeout = 5000;
const QString dialogName = QStringLiteral("GalleryOverwrite");

QString nameOf(int button)
{
    const auto names = QMetaEnum::fromType<QDialogButtonBox::StandardButtons>();
    const char *name = names.valueToKey(button);
    return name ? QString::fromLatin1(name) : QString::number(button);
}

} // namespace

MessageBoxesPage::MessageBoxesPage(QWidget *parent)
    : GalleryPage(parent)
{
    addKinds();
    addModes();
    addDialogs();
    addStretch();
}

QPushButton *MessageBoxesPage::createButton(const QString &text,
                                            const std::function<void()> &action)
{
    auto *button = new ZelPushButton(text, this);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

template <typename Function>
void MessageBoxesPage::ask(Function function, const QString &title, const QString &text,
                           QMessageBox::StandardButtons buttons,
                           QMessageBox::StandardButton defaultButton, int timeout,
                           const QString &details)
{
    const ZelScopedMessageBoxMode mode{ZelMessageBox::Mode(mode_)};
    const int answer = function(this, title, text, buttons, defaultButton, timeout, details);
    log(title + QStringLiteral(": ") + nameOf(answer));
}

void MessageBoxesPage::addKinds()
{
    QVBoxLayout *section =
        addSection(tr("Kinds"), tr("Each button opens a box; the log tells the answer. Ctrl+C "
                                   "copies the texts of an open box."));
    QHBoxLayout *row = addRow(section);
    row->addWidget(createButton(tr("&Information"), [this] {
        ask(&ZelMessageBox::information, tr("Render"), tr("The picture was saved."),
            QMessageBox::Ok, QMessageBox::Ok);
    }));
    row->addWidget(createButton(tr("&Warning"), [this] {
        ask(&ZelMessageBox::warning, tr("Textures"), tr("Two textures were not found."),
            QMessageBox::Ignore | QMessageBox::Cancel, QMessageBox::Ignore);
    }));
    row->addWidget(createButton(tr("&Critical"), [this] {
        ask(&ZelMessageBox::critical, tr("Scene"), tr("The scene can't be read."),
            QMessageBox::Retry | QMessageBox::Abort, QMessageBox::Abort);
    }));
    row->addWidget(createButton(tr("&Question"), [this] {
        ask(&ZelMessageBox::question, tr("Materials"), tr("Delete the material \"Brass\"?"),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    }));
    row->addStretch(1);

    row = addRow(section);
    row->addWidget(createButton(tr("Timed def&ault"), [this] {
        ask(&ZelMessageBox::question, tr("Queue"), tr("Start the next picture?"),
            QMessageBox::Yes | QMessageBox::No, QMessageBox::Yes, timeout);
    }));
    row->addWidget(createButton(tr("&Details"), [this] {
        ask(&ZelMessageBox::warning, tr("Textures"), tr("Two textures were not found."),
            QMessageBox::Ok, QMessageBox::Ok, 0,
            QStringLiteral("textures/oak.png\ntextures/walnut.png"));
    }));
    row->addWidget(createButton(tr("&Long title"), [this] {
        ask(&ZelMessageBox::information,
            tr("A title that is a good deal longer than the text below it"), tr("Short."),
            QMessageBox::Ok, QMessageBox::Ok);
    }));
    row->addStretch(1);
}

void MessageBoxesPage::addModes()
{
    QVBoxLayout *section = addSection(
        tr("Mode"), tr("What the buttons above do. Without dialogs messages go to the log of the "
                       "process and are collected; the answer is the default button."));
    QHBoxLayout *row = addRow(section);
    auto *modes = new QButtonGroup(this);
    const QStringList texts{tr("S&how"), tr("&No dialogs"), tr("&Silent")};
    for (int i = 0; i < texts.size(); ++i) {
        auto *choice = new QRadioButton(texts[i], this);
        choice->setChecked(i == mode_);
        modes->addButton(choice, i);
        row->addWidget(choice);
    }
    row->addStretch(1);
    connect(modes, &QButtonGroup::idClicked, this, [this](int mode) { mode_ = mode; });

    collected_ = new QPlainTextEdit(this);
    collected_->setReadOnly(true);
    collected_->setTabChangesFocus(true);
    collected_->setAccessibleName(tr("Collected messages"));
    collected_->setPlaceholderText(tr("Nothing collected"));
    collected_->setFixedHeight(fontMetrics().lineSpacing() * 6);
    section->addWidget(collected_);
    row = addRow(section);
    row->addWidget(createButton(tr("Show c&ollected messages"), [this] { collect(); }));
    row->addStretch(1);
}

void MessageBoxesPage::collect()
{
    const auto all = ZelMessageBox::Information | ZelMessageBox::Warning | ZelMessageBox::Critical;
    collected_->setPlainText(ZelMessageBox::getMessages(all).join(u'\n'));
}

void MessageBoxesPage::addDialogs()
{
    QVBoxLayout *section =
        addSection(tr("Don't show again"),
                   tr("The first dialog leaves it to its caller to store the tick, the second one "
                      "stores the tick and the answer; Cancel stores nothing."));
    QHBoxLayout *row = addRow(section);
    row->addWidget(createButton(tr("&Message dialog"), [this] { openMessageDialog(); }));
    row->addWidget(createButton(tr("Dialog that &remembers"), [this] { openRemembering(); }));
    row->addStretch(1);
    row = addRow(section);
    remember_ = new QCheckBox(tr("Remember the choice"), this);
    force_ = new QCheckBox(tr("Show it anyway"), this);
    row->addWidget(remember_);
    row->addWidget(force_);
    row->addStretch(1);

    row = addRow(section);
    row->addWidget(createButton(tr("R&eset"), [this] { forget(); }));
    stored_ = new QLabel(this);
    stored_->setProperty("dim", true);
    row->addWidget(stored_, 1);
    showStored();
}

void MessageBoxesPage::openMessageDialog()
{
    ZelMessageDialog dialog(this, tr("Textures"),
                            tr("The textures are larger than the memory of the graphics card."),
                            true, QDialogButtonBox::Ok | QDialogButtonBox::Cancel, true);
    dialog.setButtonName(QDialogButtonBox::Ok, tr("&Render anyway"));
    const bool accepted = dialog.exec() == QDialog::Accepted;
    log(tr("message dialog: %1, %2")
            .arg(accepted ? tr("accepted") : tr("rejected"),
                 dialog.dontShowAgain() ? tr("don't show again") : tr("show again")));
}

void MessageBoxesPage::openRemembering()
{
    ZelDontShowAgainDialog dialog(dialogName, QMessageBox::Question, tr("Textures"),
                                  tr("Overwrite the file \"oak.png\"?"),
                                  QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel, this);
    dialog.setDefaultButton(QMessageBox::No);
    dialog.setRememberUserChoice(remember_->isChecked());
    dialog.setForceShow(force_->isChecked());
    const int answer = dialog.exec();
    log(tr("dialog that remembers: %1, %2")
            .arg(nameOf(answer), dialog.wasShown() ? tr("shown") : tr("not shown")));
    showStored();
}

void MessageBoxesPage::forget()
{
    ZelSettings settings;
    settings.removeKey(QStringLiteral("ZelDontShowAgainDialog.") + dialogName);
    settings.removeKey(QStringLiteral("ZelDontShowAgainDialog.UserChoices.") + dialogName);
    showStored();
}

void MessageBoxesPage::showStored()
{
    const ZelSettings settings;
    const QString show = QStringLiteral("ZelDontShowAgainDialog.") + dialogName;
    const QString choice = QStringLiteral("ZelDontShowAgainDialog.UserChoices.") + dialogName;
    if (!settings.hasKey(show)) {
        stored_->setText(tr("Nothing is stored."));
        return;
    }
    stored_->setText(tr("Stored: %1, answer %2")
                         .arg(settings.value(show).toBool() ? tr("show") : tr("don't show"),
                              nameOf(settings.value(choice, -1).toInt())));
}
